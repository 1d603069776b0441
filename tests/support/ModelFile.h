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

    /// Of a file that ends after some lines these are taken, and the end is reported.
    void ReadCut(int kept) const
    {
        FileLines expected = memory();
        std::copy_n(counted.begin(), kept, expected.begin());
        Put({counted.begin(), counted.begin() + kept});
        Read(kept < static_cast<int>(counted.size()) ? 62 : 0);
        QCOMPARE(MemoryDiffersFrom(expected), QByteArray());
    }

    /// Reads a file with one garbled line: with an error the lines before it are taken, else all.
    void ReadGarbled(int line, const QByteArray& garbage, int error) const
    {
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

    /// Reads and writes in one of the folders of AddFolderFailures; nothing in memory changes.
    void FailInFolder(const QByteArray& failing, int reading, int writing) const
    {
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
