// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The search finds every entry of the menus in the topic that explains it, and every message.
#include "support/DayPage.h"
#include "support/MessagePattern.h"
#include "support/WindowTest.h"
#include "windows/guide/HelpFile.h"
#include "windows/guide/SearchPane.h"

#include <QFile>
#include <QHelpEngine>
#include <QHelpSearchEngine>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>

namespace zelvia::test
{
namespace
{

constexpr int kPatience = 20000;

/// The texts that every message box is made of, between what changes in it.
QStringList MessageTexts()
{
    static const QRegularExpression letter(QStringLiteral("\\p{L}"));
    QStringList texts;
    for (const Message* message : Messages::kAll) {
        texts << ToQString(message->text).split(QStringLiteral("{}")).filter(letter);
    }
    texts.removeDuplicates();
    return texts;
}

/// The messages as the page quotes them, blanks and all.
QStringList Quoted(const QByteArray& page)
{
    static const QRegularExpression quote(QStringLiteral("<pre class=\"messaggio\">(.*)</pre>"));
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    QStringList texts;
    for (const QRegularExpressionMatch& match : quote.globalMatch(QString::fromUtf8(page))) {
        texts << match.captured(1).remove(tag);
    }
    return texts;
}

} // namespace

class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void query_data();
    void query();
    void captions_data();
    void captions();
    void messages_data();
    void messages();
    void messagesInOrder();
    void onlyMessagesAreQuoted();
    void pane();

private:
    /// The names of the pages that hold what was searched.
    QStringList Pages(const QString& text) const;
    /// The page of the messages down to the errors with a number.
    QByteArray BeforeErrors() const;

    std::unique_ptr<HelpFile> file_;
};

void SearchTest::initTestCase()
{
    file_ = std::make_unique<HelpFile>(QStringLiteral(ZELVIA_GUIDE));
    QHelpSearchEngine* engine = file_->Engine().searchEngine();
    QSignalSpy indexed(engine, &QHelpSearchEngine::indexingFinished);
    engine->scheduleIndexDocumentation();
    QVERIFY(indexed.wait(kPatience));
}

void SearchTest::cleanupTestCase()
{
    file_.reset();
}

QStringList SearchTest::Pages(const QString& text) const
{
    QHelpSearchEngine* engine = file_->Engine().searchEngine();
    QSignalSpy searched(engine, &QHelpSearchEngine::searchingFinished);
    engine->search(SearchQuery(text));
    if (searched.isEmpty() && !searched.wait(kPatience)) {
        return {QStringLiteral("the search never ended")};
    }
    QStringList pages;
    for (const QHelpSearchResult& result : engine->searchResults(0, engine->searchResultCount())) {
        pages << result.url().fileName();
    }
    return pages;
}

void SearchTest::query_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("query");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("signs alone") << " \"*?( : "
                                 << "";
    QTest::newRow("one word") << "peso"
                              << "\"peso\"*";
    QTest::newRow("a short word is whole") << "Km"
                                           << "\"Km\"";
    QTest::newRow("several words") << "  lista   dei tempi "
                                   << "\"lista\"* \"dei\"* \"tempi\"*";
    QTest::newRow("signs part words") << "L'ORA: MAX 9.999"
                                      << "\"L\" \"ORA\"* \"MAX\"* \"9\" \"999\"*";
    QTest::newRow("quotes and operators are words") << "\"a\" OR NOT near*"
                                                    << "\"a\" \"OR\" \"NOT\"* \"near\"*";
    QTest::newRow("accents stay") << "città"
                                  << "\"città\"*";
}

void SearchTest::query()
{
    QFETCH(QString, text);
    QFETCH(QString, query);
    QCOMPARE(SearchQuery(text), query);
}

void SearchTest::captions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    const DayPage page;
    const frmMain window;
    int entries = 0;
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        for (const QAction* action : menu->actions()) {
            if (!action->isSeparator()) {
                const QString caption = action->text().remove(QLatin1Char('&'));
                QTest::newRow(qPrintable(action->objectName())) << action->objectName() << caption;
                ++entries;
            }
        }
    }
    QVERIFY(entries > 30);
}

void SearchTest::captions()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    const QUrl topic = file_->Topic(name);
    QVERIFY2(topic != HelpFile::FirstPage(), "no topic");
    const QStringList pages = Pages(caption);
    QVERIFY2(pages.contains(topic.fileName()), qPrintable(pages.join(QLatin1Char(' '))));
    QVERIFY2(pages.contains(QStringLiteral("menu.html")), qPrintable(pages.join(QLatin1Char(' '))));
}

void SearchTest::messages_data()
{
    QTest::addColumn<QString>("text");
    for (const QString& text : MessageTexts()) {
        QTest::newRow(qPrintable(text)) << text;
    }
}

void SearchTest::messages()
{
    QFETCH(QString, text);
    const QStringList pages = Pages(text);
    QVERIFY2(pages.contains(QStringLiteral("messaggi.html")), qPrintable(pages.join(QLatin1Char(' '))));
    QVERIFY2(!Quoted(BeforeErrors()).filter(text).isEmpty(), "not quoted letter for letter");
}

QByteArray SearchTest::BeforeErrors() const
{
    const QByteArray page = file_->Data(HelpFile::FirstPage().resolved(QUrl(QStringLiteral("messaggi.html"))));
    return page.left(page.indexOf("name=\"errori\""));
}

void SearchTest::messagesInOrder()
{
    static const QRegularExpression notLetters(QStringLiteral("[^A-Z0-9]+"));
    static const QRegularExpression changing(QStringLiteral("<i>[^<]*</i>"));
    QStringList order;
    for (const QString& text : Quoted(QString::fromUtf8(BeforeErrors()).remove(changing).toUtf8())) {
        order << text.toUpper().replace(notLetters, QStringLiteral(" ")).trimmed();
    }
    QVERIFY(order.size() > 50);
    QStringList sorted = order;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(order, sorted);
}

void SearchTest::onlyMessagesAreQuoted()
{
    for (const QString& text : Quoted(BeforeErrors())) {
        QVERIFY2(std::any_of(std::begin(Messages::kAll), std::end(Messages::kAll),
                             [&](const Message* message) {
                                 return message != &Messages::kGuideNotRead &&
                                        PatternOf(*message).match(text).hasMatch();
                             }),
                 qPrintable(text));
    }
}

// What is typed before the index is ready is answered when it is.
void SearchTest::pane()
{
    const HelpFile file(QStringLiteral(ZELVIA_GUIDE));
    SearchPane pane(*file.Engine().searchEngine());
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));
    QVERIFY(!pane.state->text().isEmpty());
    pane.TakeFocus();
    QTest::keyClicks(pane.words, QStringLiteral("capodanno"));
    QTRY_COMPARE_WITH_TIMEOUT(pane.state->text(), QStringLiteral("Un argomento trovato"), kPatience);
    QVERIFY(pane.results->item(0)->text().startsWith(QStringLiteral("L'anno nuovo\n")));

    QTest::keyClicks(pane.words, QStringLiteral("xyz"));
    QTRY_COMPARE(pane.state->text(), QStringLiteral("Nessun argomento trovato"));
    QCOMPARE(pane.results->count(), 0);

    pane.words->selectAll();
    QTest::keyClicks(pane.words, QStringLiteral("diario"));
    QTRY_VERIFY(pane.results->count() > 5);
    QCOMPARE(pane.state->text(), QStringLiteral("%1 argomenti trovati").arg(pane.results->count()));
    pane.words->clear();
    QTRY_COMPARE(pane.results->count(), 0);
    QCOMPARE(pane.state->text(), QString());
}

} // namespace zelvia::test

ZELVIA_WINDOW_TEST(zelvia::test::SearchTest)
#include "SearchTest.moc"
