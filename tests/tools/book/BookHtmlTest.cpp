// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/book/BookHtml.h"

#include "support/TestProgram.h"
#include "tools/book/BookDesk.h"

#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace zelvia;
using namespace zelvia::test;

class BookHtmlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Whole_data();
    void Whole();
    void Day();
    void Chapters();
};

/// Every element is closed, every id there once, every link leads to one, and nothing is asked from elsewhere.
void BookHtmlTest::Whole_data()
{
    QTest::addColumn<QByteArray>("diary");
    QTest::addColumn<int>("days");
    QTest::newRow("a small year") << QByteArray("2023") << 3;
    QTest::newRow("the sample year") << QByteArray("prova") << 220;
}

void BookHtmlTest::Whole()
{
    QFETCH(QByteArray, diary);
    const QByteArray html = QByteArray::fromStdString(BookAsHtml(BookDesk().Make(diary.toStdString())));
    QSet<QString> ids;
    QStringList links;
    int days = 0;
    QXmlStreamReader xml(html);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString id = attributes.value(QLatin1String("id")).toString();
        QVERIFY2(id.isEmpty() || !ids.contains(id), qPrintable(id));
        ids << id;
        if (attributes.hasAttribute(QLatin1String("href"))) {
            links << attributes.value(QLatin1String("href")).toString();
        }
        days += xml.name() == QLatin1String("article") ? 1 : 0;
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QTEST(days, "days");
    QVERIFY(!links.isEmpty());
    for (const QString& link : links) {
        QVERIFY2(link.startsWith(u'#') && ids.contains(link.mid(1)), qPrintable(link));
    }
    for (const char* const outside : {"http", "src=", "<link", "url(", "@import", "<script"}) {
        QVERIFY2(!html.contains(outside), outside);
    }
}

void BookHtmlTest::Day()
{
    const QByteArray html = QByteArray::fromStdString(BookAsHtml(BookDesk().Make("2023")));
    QVERIFY(html.contains("<article id=\"g2023-03-01\"><h4><b>1</b><span>mercoledì<small>marzo 2023</small></span></h4>"
                          "<div class=\"km\"><span>10,045 km</span><span>1:00:00</span><span>5:58 al km</span></div>"));
    QVERIFY(html.contains("<dt>Percorso</dt><dd>Città alta</dd>"));
    QVERIFY(html.contains("<b>Tempi Km</b>01 00:06:00 · arrivo"));
    QVERIFY(html.contains("<span>giovedì<small>marzo 2023</small></span><em>Gara</em>"));
    QVERIFY(html.contains("<b>Note</b><p>riposo &lt;b&gt; &amp; 5 €</p><p></p><p>fine</p>"));
    QVERIFY(html.contains("<tr class=\"best\"><td class=\"r\" data-h=\"\">1°</td>"));
}

/// A year without runs has only its days.
void BookHtmlTest::Chapters()
{
    Book book;
    book.year = 2020;
    book.diary = "<x>";
    book.chapters.push_back({"diario", "Il diario", {}});
    const QByteArray html = QByteArray::fromStdString(BookAsHtml(book));
    QVERIFY(html.contains("<title>Il diario del 2020</title>"));
    QVERIFY(html.contains("<h2 id=\"diario\">Il diario</h2>"));
    QVERIFY(html.contains("diario «&lt;x&gt;»"));
}

ZELVIA_TEST(BookHtmlTest)
#include "BookHtmlTest.moc"
