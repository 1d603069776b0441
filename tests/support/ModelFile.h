// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diary/Module1.h"
#include "support/Bytes.h"
#include "support/Days.h"
#include "support/FileFailures.h"
#include "support/MessageScript.h"
#include "support/TempFolder.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace zelvia::test
{

using FileLines = std::vector<std::string>;

/// Expects the report of a routine that has no name of its own.
inline void ExpectPlainReport(MessageScript& boxes, int number)
{
    boxes.ExpectError("ERRORE : ", number);
}

/// A file of a diary's folder whose values are held in memory, as the tests of such files have them. Each check runs
/// in CartellaDiario, the folder here unless the check says otherwise.
struct ModelFile {
    std::string name;
    std::function<FileLines()> memory; ///< The values in memory, line by line.
    FileLines counted;                 ///< A file whose lines all differ.
    std::function<void()> read;
    std::function<void()> write;
    bool (*isText)(int line); ///< By the line's number from 0.
    void (*expectReadReport)(MessageScript& boxes, int number) = ExpectPlainReport;
    TempFolder folder = {};

    Text Path() const { return folder.Path(name); }
    Text Content() const { return folder.Read(name); }
    void Put(const FileLines& lines) const { folder.Write(name, Lines(lines)); }
    QByteArray MemoryDiffersFrom(const FileLines& lines) const { return Difference(Lines(memory()), Lines(lines)); }

    /// Reads and expects a report, none for error 0.
    void Read(int error) const
    {
        MessageScript boxes;
        if (error != 0) {
            expectReadReport(boxes, error);
        }
        read();
        QVERIFY(boxes.AllShown());
    }

    void Write(int error) const
    {
        MessageScript boxes;
        if (error != 0) {
            ExpectPlainReport(boxes, error);
        }
        write();
        QVERIFY(boxes.AllShown());
    }

    /// What was written is what is in memory, and comes back after `blank`.
    void ComesBack(const std::function<void()>& blank) const
    {
        const FileLines lines = memory();
        Write(0);
        QCOMPARE(Difference(Content(), Lines(lines)), QByteArray());
        blank();
        QVERIFY(memory() != lines);
        Read(0);
        QCOMPARE(MemoryDiffersFrom(lines), QByteArray());
    }

    /// For rows of `kept`: of a file that ends after some lines these are taken, and the end is reported.
    void ReadCut() const
    {
        QFETCH(int, kept);
        FileLines expected = memory();
        std::copy_n(counted.begin(), kept, expected.begin());
        Put({counted.begin(), counted.begin() + kept});
        Read(kept < static_cast<int>(counted.size()) ? 62 : 0);
        QCOMPARE(MemoryDiffersFrom(expected), QByteArray());
    }

    static void AddGarbledColumns()
    {
        QTest::addColumn<int>("line"); // From 0.
        QTest::addColumn<QByteArray>("garbage");
        QTest::addColumn<int>("error"); // 0 where the line passes silently.
    }

    /// Rows of garbage in one line; a `wide` number has 32 bits.
    void AddGarbled(int line, bool wide) const
    {
        const bool text = isText(line);
        QTest::addRow("line %d, text", line + 1) << line << QByteArray("xyz") << (text ? 0 : 13);
        QTest::addRow("line %d, quoted", line + 1) << line << QByteArray("\"7\"") << (text ? 0 : 13);
        QTest::addRow("line %d, empty", line + 1) << line << QByteArray() << (text ? 0 : 13);
        QTest::addRow("line %d, 40000", line + 1) << line << QByteArray("40000") << (text || wide ? 0 : 6);
        QTest::addRow("line %d, 2147483648", line + 1) << line << QByteArray("2147483648") << (text ? 0 : 6);
    }

    /// For those rows: with an error the lines before the garbled one are taken, else all.
    void ReadGarbled() const
    {
        QFETCH(int, line);
        QFETCH(QByteArray, garbage);
        QFETCH(int, error);
        FileLines filed = counted;
        filed[static_cast<std::size_t>(line)] = garbage.toStdString();
        Put(filed);
        FileLines expected = filed;
        if (error != 0) {
            expected = memory();
            std::copy_n(filed.begin(), line, expected.begin());
        } else if (isText(line)) {
            expected[static_cast<std::size_t>(line)] = LineOf(TextOf(QByteArray(garbage).replace("\"", "")));
        }
        Read(error);
        QCOMPARE(MemoryDiffersFrom(expected), QByteArray());
    }

    /// For the rows of AddFolderFailures: nothing in memory changes.
    void FailInFolder() const
    {
        QFETCH(QByteArray, failing);
        QFETCH(int, reading);
        QFETCH(int, writing);
        Module1::CartellaDiario = MakeFailingFolder(folder, failing, name);
        const FileLines before = memory();
        Read(reading);
        QVERIFY(memory() == before);
        Write(writing);
    }

    void WriteToFullDisk() const
    {
        std::filesystem::remove(folder.Native(name));
        std::filesystem::create_symlink("/dev/full", folder.Native(name));
        Write(61);
        std::filesystem::remove(folder.Native(name));
    }
};

} // namespace zelvia::test
