// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The screen's pointer and the pointers of labels.
#include "core/CMouse.h"
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "support/WindowTest.h"
#include "toolkit/SampleForm.h"

#include <QFile>
#include <QTemporaryDir>

using namespace zelvia;

class PointerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheHourglassIsTheApplicationsOverride();
    void ItComesBackHoweverTheRoutineEnds();
    void NestedPointersLeaveNothingBehind();
    void ACursorFileKeepsItsHotSpot();
    void AMissingCursorFileIs53();
    void AGarbledCursorFileIs481_data();
    void AGarbledCursorFileIs481();
    void ALabelsPointerIsItsOwn();

private:
    static QByteArray CursorBytes();
    int ErrorOfLoading(const QByteArray& bytes);

    QTemporaryDir folder_;
};

/// A cursor of 16 by 16 pixels, all of them 0x30A0F0, with the hot spot (5, 3).
QByteArray PointerTest::CursorBytes()
{
    constexpr char side = 16;
    QByteArray bytes("\0\0\2\0\1\0"
                     "\x10\x10\0\0\5\0\3\0",
                     14);
    const int pixels = side * side * 4;
    const int mask = side * 4;
    const int size = 40 + pixels + mask;
    const auto number = [&bytes](int value) {
        for (int shift = 0; shift < 32; shift += 8) {
            bytes += static_cast<char>((value >> shift) & 0xFF);
        }
    };
    number(size);
    number(22);
    number(40);
    number(side);
    number(2 * side);
    bytes += QByteArray("\1\0\x20\0", 4);
    for (const int value : {0, pixels + mask, 0, 0, 0, 0}) {
        number(value);
    }
    for (int i = 0; i < side * side; ++i) {
        bytes += "\xF0\xA0\x30\xFF";
    }
    return bytes + QByteArray(mask, '\0');
}

int PointerTest::ErrorOfLoading(const QByteArray& bytes)
{
    QFile file(folder_.filePath(QStringLiteral("mano.cur")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        return -1;
    }
    file.close();
    try {
        LoadCursor(SystemPath(folder_.path().toStdString()) + "\\mano.cur");
    } catch (const ErroreRunTime& error) {
        return error.Number();
    }
    return 0;
}

void PointerTest::TheHourglassIsTheApplicationsOverride()
{
    QVERIFY(QApplication::overrideCursor() == nullptr);
    {
        CMouse mouse;
        QVERIFY(QApplication::overrideCursor() == nullptr);
        mouse.SetPointer(MousePointer::Hourglass);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        mouse.SetPointer(MousePointer::Default);
        QVERIFY(QApplication::overrideCursor() == nullptr);
        mouse.SetPointer(MousePointer::Hourglass);
    }
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void PointerTest::ItComesBackHoweverTheRoutineEnds()
{
    try {
        CMouse mouse;
        mouse.SetPointer(MousePointer::Hourglass);
        throw ErroreRunTime(Errore::FileNonTrovato);
    } catch (const ErroreRunTime& error) {
        QCOMPARE(error.Number(), 53);
    }
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void PointerTest::NestedPointersLeaveNothingBehind()
{
    CMouse outer;
    outer.SetPointer(MousePointer::Hourglass);
    {
        CMouse inner;
        inner.SetPointer(MousePointer::Hourglass);
    }
    QVERIFY(QApplication::overrideCursor() != nullptr);
    outer.SetPointer(MousePointer::Default);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void PointerTest::ACursorFileKeepsItsHotSpot()
{
    QCOMPARE(ErrorOfLoading(CursorBytes()), 0);
    const QCursor cursor = LoadCursor(SystemPath(folder_.path().toStdString()) + "\\mano.cur");
    QCOMPARE(cursor.hotSpot(), QPoint(5, 3));
    QCOMPARE(cursor.pixmap().size(), QSize(16, 16));
    QCOMPARE(cursor.pixmap().toImage().pixelColor(8, 8), QColor(0x30, 0xA0, 0xF0));
}

void PointerTest::AMissingCursorFileIs53()
{
    const Text folder = SystemPath(folder_.path().toStdString());
    try {
        LoadCursor(folder + "\\assente.cur");
        QFAIL("no error");
    } catch (const ErroreRunTime& error) {
        QCOMPARE(error.Number(), 53);
    }
}

void PointerTest::AGarbledCursorFileIs481_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = CursorBytes();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a text") << QByteArray("non sono un puntatore, sono un testo");
    QTest::newRow("the header alone") << good.left(14);
    QTest::newRow("no picture behind the header") << good.left(30);
    QByteArray icon = good;
    icon[2] = 1;
    QTest::newRow("an icon") << icon;
    QByteArray none = good;
    none[4] = 0;
    QTest::newRow("of no picture") << none;
}

void PointerTest::AGarbledCursorFileIs481()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(ErrorOfLoading(bytes), 481);
}

void PointerTest::ALabelsPointerIsItsOwn()
{
    SampleForm form;
    QCOMPARE(form.lblFermo->cursor().shape(), Qt::ArrowCursor);
    form.lblFermo->setCursor(Qt::CrossCursor);
    QCOMPARE(form.lblFermo->cursor().shape(), Qt::CrossCursor);
    // One that acts says so.
    QCOMPARE(form.lblVai->cursor().shape(), Qt::PointingHandCursor);
    form.lblFermo->unsetCursor();
    QCOMPARE(form.lblFermo->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

ZELVIA_WINDOW_TEST(PointerTest)

#include "PointerTest.moc"
