// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PageTurn.h"

#include "support/Hand.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

using namespace zelvia;

namespace
{

QWidget* Leaf(const QWidget& window)
{
    return window.findChild<QWidget*>(QStringLiteral("leaf"));
}

} // namespace

class PageTurnTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void NothingMovesUnlessAllowed();
    void TheOldPageFades();
    void KeysAndPressesReachTheNewPage();
    void QuickTurnsDoNotFade();

private:
    std::unique_ptr<SampleForm> form_;
};

void PageTurnTest::init()
{
    PageTurn::Allow(true);
    form_ = std::make_unique<SampleForm>();
    form_->Open();
    form_->Start(*form_->txtUno);
}

void PageTurnTest::cleanup()
{
    PageTurn::Allow(false);
    form_.reset();
}

void PageTurnTest::NothingMovesUnlessAllowed()
{
    PageTurn::Allow(false);
    PageTurn turn;
    turn.Begin(*form_);
    QVERIFY(Leaf(*form_) == nullptr);
}

void PageTurnTest::TheOldPageFades()
{
    form_->lblFermo->setAutoFillBackground(true);
    const auto colour = [this] {
        return form_->grab().toImage().pixelColor(form_->lblFermo->geometry().bottomRight() - QPoint(3, 3));
    };
    const auto paint = [this](const QColor& ink) {
        QPalette palette = form_->lblFermo->palette();
        palette.setColor(QPalette::Window, ink);
        form_->lblFermo->setPalette(palette);
    };
    paint(Qt::red);
    form_->repaint();
    PageTurn turn;
    turn.Begin(*form_);
    paint(Qt::blue);
    // The new page is beneath: whole as soon as the leaf has gone, which it soon has.
    QVERIFY(Leaf(*form_) != nullptr);
    QCOMPARE(colour(), QColor(Qt::red));
    QTRY_VERIFY(Leaf(*form_) == nullptr);
    QCOMPARE(colour(), QColor(Qt::blue));
    static_assert(PageTurn::kMilliseconds <= 120);
}

void PageTurnTest::KeysAndPressesReachTheNewPage()
{
    PageTurn turn;
    turn.Begin(*form_);
    QVERIFY(Leaf(*form_) != nullptr);
    QVERIFY(Leaf(*form_)->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(Leaf(*form_)->focusPolicy(), Qt::NoFocus);
    QVERIFY(form_->txtUno->hasFocus());
    QCOMPARE(form_->childAt(form_->cmdVai->geometry().center()), static_cast<QWidget*>(form_->cmdVai));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QCoreApplication::sendEvent(form_->txtUno, &key);
    QCOMPARE(form_->txtUno->text(), QStringLiteral("a"));
    QVERIFY(Leaf(*form_) != nullptr);
}

void PageTurnTest::QuickTurnsDoNotFade()
{
    PageTurn turn;
    turn.Begin(*form_);
    QVERIFY(Leaf(*form_) != nullptr);
    turn.Begin(*form_);
    QVERIFY(Leaf(*form_) == nullptr);
}

ZELVIA_WINDOW_TEST(PageTurnTest)

#include "PageTurnTest.moc"
