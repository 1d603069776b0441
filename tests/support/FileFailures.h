// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/TempFolder.h"

#include <QTest>

/// Rows of names that cannot be read or written, alike for all the kinds of file.
namespace zelvia::test
{

/// Folders of a diary: what reading and writing a file of a known name in them reports, 0 for nothing. They are below
/// the temporary one, "occupata" having a folder in the place of the file; "-" means that no folder is known.
inline void AddFolderFailures()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<int>("reading");
    QTest::addColumn<int>("writing");
    QTest::newRow("missing file") << QByteArray("vuota") << 53 << 0;
    QTest::newRow("missing folder") << QByteArray("manca") << 76 << 76;
    QTest::newRow("a folder in its place") << QByteArray("occupata") << 75 << 75;
    QTest::newRow("no folder known") << QByteArray("-") << 76 << 76;
}

/// Makes the folders of those rows for a file of that name. The folder of the row.
inline Text MakeFailingFolder(const TempFolder& temp, const QByteArray& folder, const std::string& file)
{
    temp.MakeFolder("vuota");
    temp.MakeFolder("occupata/" + file);
    return folder == "-" ? Text() : temp.Path(folder.toStdString());
}

/// Names of files, and the error that writing them reports; "cartella" is a folder and "pieno" a full disk.
inline void AddWriteFailures()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("error");
    QTest::newRow("missing folder") << QByteArray("manca/file") << 76;
    QTest::newRow("a folder") << QByteArray("cartella") << 75;
    QTest::newRow("full disk") << QByteArray("pieno") << 61;
    QTest::newRow("no name at all") << QByteArray() << 76;
}

/// Makes what those rows need. The path of the row.
inline Text MakeFailingFile(const TempFolder& temp, const QByteArray& name)
{
    temp.MakeFolder("cartella");
    (void)temp.FullDisk();
    return name.isEmpty() ? Text() : temp.Path(name.toStdString());
}

} // namespace zelvia::test
