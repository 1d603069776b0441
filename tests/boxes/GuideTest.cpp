// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input to the boxes of the guide.
#include "boxes/BoxHand.h"
#include "support/WindowTest.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

namespace zelvia::test
{
namespace
{

constexpr int kPatience = 20000;

/// The page and the window of the guide.
class Reader : public EntryPage
{
public:
    Reader() { folder.Write(QStringLiteral("Guida.hlp"), GuideBytes()); }

    static QWidget* Window()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("HelpWindow") && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }

    template <typename Widget>
    static Widget& Part(const char* name)
    {
        return *Window()->findChild<Widget*>(QLatin1String(name));
    }

    void Open(Qt::Key entry)
    {
        Start();
        Menu("mnuHelp", entry);
        QTRY_VERIFY(Window() != nullptr);
        EntryPage::AwaitFront(*Window());
    }
};

} // namespace

class GuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxHasItsRow();
    void find();
    void words();
    void keysThatAreNoneOfItsLists();
};

void GuideTest::everyBoxHasItsRow()
{
    Reader reader;
    reader.Open(Qt::Key_S);
    QCOMPARE(BoxesOf(*Reader::Window()),
             Sorted({Counted("find", 1), Counted("words", 1), Counted("contents", 1), Counted("results", 1)}));
    VERIFY_SCRIPT(reader.script);
}

void GuideTest::find()
{
    Reader reader;
    reader.Open(Qt::Key_S);
    auto& box = Reader::Part<QLineEdit>("find");
    auto& notFound = Reader::Part<QLabel>("notFound");
    for (const BadInput& input : TextInputs()) {
        hand::Key(Qt::Key_F, Qt::ControlModifier);
        EnterInto(box, input);
        hand::Key(Qt::Key_Return);
        // Of these only blanks are on the first page, never two together.
        QTRY_VERIFY2(notFound.isVisible(), input.name);
        QVERIFY(box.text().size() <= box.maxLength());
    }
    EnterInto(box, {"", Entry::Typed, QStringLiteral("diario")});
    hand::Key(Qt::Key_Return);
    QTRY_VERIFY(!notFound.isVisible());
    VERIFY_SCRIPT(reader.script);
}

void GuideTest::words()
{
    Reader reader;
    reader.Open(Qt::Key_C);
    auto& box = Reader::Part<QLineEdit>("words");
    auto& results = Reader::Part<QListWidget>("results");
    auto& state = Reader::Part<QLabel>("state");
    QTRY_VERIFY_WITH_TIMEOUT(state.text().isEmpty(), kPatience);
    QList<BadInput> inputs(TextInputs().begin(), TextInputs().end());
    constexpr int pairs = 1'000'000;
    inputs << BadInput{"megabytes of words", Entry::Pasted, QStringLiteral("a bc\" ").repeated(pairs)}
           << BadInput{"marks", Entry::Pasted, QStringLiteral("\"'()*^:-+{}\" AND OR NOT NEAR")};
    for (const BadInput& input : inputs) {
        EnterInto(box, {"", Entry::Typed, QStringLiteral("diario")});
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY2_WITH_TIMEOUT(results.count() > 0, input.name, kPatience);
        EnterInto(box, input);
        hand::Key(Qt::Key_Return);
        QTRY_VERIFY2_WITH_TIMEOUT(results.count() == 0, input.name, kPatience);
    }
    VERIFY_SCRIPT(reader.script);
}

void GuideTest::keysThatAreNoneOfItsLists()
{
    Reader reader;
    reader.Open(Qt::Key_S);
    auto& contents = Reader::Part<QAbstractItemView>("contents");
    QTRY_VERIFY_WITH_TIMEOUT(contents.model()->rowCount() == 1, kPatience);
    contents.setFocus();
    PressForeignKeys();
    // It may still be made when the first of them come.
    QTRY_VERIFY_WITH_TIMEOUT(contents.model()->rowCount() == 1, kPatience);
    QVERIFY(contents.findChild<QLineEdit*>() == nullptr);
    VERIFY_SCRIPT(reader.script);
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::GuideTest)
#include "GuideTest.moc"
