// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/EntryPage.h"

#include "support/ActiveWindow.h"
#include "support/DiaryBytes.h"
#include "toolkit/FocusController.h"
#include "windows/routes/FrmDesPercorso.h"

#include <QMenu>
#include <QTimer>
#include <QWindow>

namespace zelvia::test
{
namespace
{

constexpr int kSeason = 6;

/// Waits for a pop-up, notes what it shows and presses a key in it.
class PopUpAnswer : public QObject
{
public:
    explicit PopUpAnswer(Qt::Key key) : key_(key)
    {
        connect(&timer_, &QTimer::timeout, this, &PopUpAnswer::Look);
        timer_.start(5);
    }

    bool Done() const { return done_; }
    const QByteArrayList& Shown() const { return shown_; }

private:
    void Look()
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (done_ || menu == nullptr || !menu->isVisible()) {
            return;
        }
        done_ = true;
        for (const QAction* action : menu->actions()) {
            if (action->isVisible()) {
                shown_ << action->objectName().toLatin1();
            }
        }
        QTest::keyClick(menu, key_);
    }

    Qt::Key key_;
    bool done_ = false;
    QByteArrayList shown_;
    QTimer timer_;
};

} // namespace

EntryPage::EntryPage()
{
    folder.Write(QStringLiteral("ZelviaFile/prova.zlv"), DiaryBytes::Blank(2026).Bytes());
    for (const char* list : {"Percorso", "Lunghezza", "Modo", "Fondo", "Tipo", "TempoAtm", "Temperatura"}) {
        folder.Write(QStringLiteral("prova/%1.lsx").arg(QLatin1String(list)), "\"Alfa\"\r\n\"Beta\"\r\n\"Gamma\"\r\n");
    }
    folder.Write(QStringLiteral("prova/ListePercorso"), RouteFileOf({"Alfa", "Beta", "Gamma"}));
}

QStringList EntryPage::Entries(int number)
{
    if (number == kSeason) {
        return {QStringLiteral("Primavera"), QStringLiteral("Estate"), QStringLiteral("Autunno"),
                QStringLiteral("Inverno")};
    }
    return {QStringLiteral("Alfa"), QStringLiteral("Beta"), QStringLiteral("Gamma")};
}

QStringList EntryPage::ListOf(int number) const
{
    const ListBox& list = *Field(number).lst;
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) {
        entries << list.item(i)->text();
    }
    return entries;
}

void EntryPage::Open(Label& label, Way way) const
{
    if (way == Way::Mouse) {
        hand::Click(label);
        return;
    }
    constexpr int controls = 80;
    for (int i = 0; i < controls && !label.hasFocus(); ++i) {
        hand::Key(Qt::Key_Tab);
    }
    QVERIFY2(label.hasFocus(), qPrintable(label.objectName()));
    hand::Key(way == Way::Enter ? Qt::Key_Return : Qt::Key_Space);
}

bool EntryPage::IsOpen(int number) const
{
    const ListControls& field = Field(number);
    return field.txt->isVisible() && field.lst->isVisible();
}

void EntryPage::TypeOver(TextBox& box, const QString& text)
{
    QTRY_VERIFY(box.hasFocus());
    box.selectAll();
    hand::Key(Qt::Key_Backspace);
    for (const QChar character : text) {
        if (character.unicode() < 128) {
            hand::Type(QString(character));
        } else {
            // The display's keyboard has no key for it.
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
        }
    }
}

QPoint EntryPage::RowAt(ListBox& list, int row)
{
    return list.visualItemRect(list.item(row)).center();
}

QByteArrayList EntryPage::PopUp(ListBox& list, Qt::Key key, bool comesBack) const
{
    const PopUpAnswer answer(key);
    hand::Click(*list.viewport(), RowAt(list, 0), Qt::RightButton);
    if (!QTest::qWaitFor([&] { return answer.Done() && QApplication::activePopupWidget() == nullptr; })) {
        return {"no pop-up"};
    }
    if (comesBack) {
        TakeFront();
    }
    return answer.Shown();
}

QByteArray EntryPage::Focused()
{
    FocusController::Instance().Flush();
    const Control* control = FocusController::Instance().Current();
    return control == nullptr ? QByteArray("none") : control->Widget().objectName().toLatin1();
}

int EntryPage::Hands() const
{
    int hands = 0;
    for (const Label* label : Page().findChildren<Label*>()) {
        hands += label->cursor().shape() == Qt::BitmapCursor ? 1 : 0;
    }
    return hands;
}

frmDesPercorso* EntryPage::RouteWindow() const
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* found = qobject_cast<frmDesPercorso*>(window);
        if (found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

void EntryPage::CloseRouteWindow() const
{
    QTRY_VERIFY(RouteWindow() != nullptr);
    const QPointer<frmDesPercorso> window = RouteWindow();
    // A window that goes before the manager has taken it in may leave no window active.
    AwaitFront(*window);
    window->close();
    QTRY_VERIFY(window.isNull());
    TakeFront();
}

void EntryPage::TakeFront() const
{
    if (!hand::OnX11()) {
        // There is no manager that would do it.
        Page().activateWindow();
    }
    AwaitFront(Page());
}

void EntryPage::AwaitFront(const QWidget& window)
{
    hand::AwaitFront(window);
}

QByteArray RouteFileOf(const QByteArrayList& names)
{
    constexpr int places = 200;
    constexpr int stretches = 20;
    QByteArray bytes;
    for (int place = 1; place <= places; ++place) {
        const bool used = place <= names.size();
        const QByteArray metres = QByteArray::number(used ? place : 0);
        bytes += '"' + (used ? names[place - 1] : QByteArray()) + "\"\r\n";
        bytes += QByteArray::number(used ? 1000 + place : 0) + "\r\n";
        bytes += used ? "\"t\"\r\n1\r\n" + metres + "\r\n" : QByteArray("\"\"\r\n0\r\n0\r\n");
        for (int stretch = 2; stretch <= stretches; ++stretch) {
            bytes += "\"\"\r\n0\r\n0\r\n";
        }
    }
    return bytes;
}

QByteArrayList TwoHundredNames()
{
    constexpr int places = 200;
    QByteArrayList names;
    for (int place = 1; place <= places; ++place) {
        names << 'R' + QByteArray::number(place);
    }
    return names;
}

} // namespace zelvia::test
