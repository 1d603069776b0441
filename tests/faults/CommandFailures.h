// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "faults/FaultyDisk.h"
#include "support/DayPage.h"

#include <cerrno>

namespace zelvia::test
{

/// A file of a command, in the order of the command, with the title of its report.
struct FileTitle {
    const char* file;
    const char* title;
    const char* behind = nullptr; ///< The report is the description alone and this.
};

/// A call that fails for a command, and what its report says.
struct Failure {
    const char* name;
    Call call;
    int reason;
    const char* report; ///< Number and description; empty when the failure does not matter.
};

inline constexpr Failure kWriteFailures[] = {
    {"open", Call::Open, EACCES, "75 Errore di accesso al file o alla cartella"},
    {"write, disk full", Call::Write, ENOSPC, "61 Disco pieno"},
    {"write, device", Call::Write, EIO, "57 Errore della periferica"},
    {"close", Call::Close, EDQUOT, "61 Disco pieno"},
    {"sync, disk full", Call::Sync, ENOSPC, "61 Disco pieno"},
    {"sync, device", Call::Sync, EIO, "57 Errore della periferica"},
};

inline constexpr Failure kReadFailures[] = {
    {"open, too many files", Call::Open, EMFILE, "67 Troppi file aperti"},
    {"open, in use", Call::Open, EBUSY, "70 Autorizzazione negata"},
    {"open, gone", Call::Open, ENOENT, "53 File non trovato"},
    {"read", Call::Read, EIO, "57 Errore della periferica"},
    {"close", Call::Close, EIO, ""},
};

inline constexpr Failure kFolderFailures[] = {
    {"no permission", Call::Make, EACCES, "75 Errore di accesso al file o alla cartella"},
    {"read-only", Call::Make, EROFS, "75 Errore di accesso al file o alla cartella"},
    {"disk full", Call::Make, ENOSPC, "61 Disco pieno"},
    {"parent gone", Call::Make, ENOENT, "76 Cartella non trovata"},
};

inline constexpr Failure kListFailures[] = {
    {"no permission", Call::List, EACCES, "75 Errore di accesso al file o alla cartella"},
    {"too many files", Call::List, EMFILE, "67 Troppi file aperti"},
    {"device", Call::NextName, EIO, "57 Errore della periferica"},
};

template <std::size_t N>
void AddFailures(const Failure (&failures)[N])
{
    QTest::addColumn<Failure>("failure");
    for (const Failure& failure : failures) {
        QTest::newRow(failure.name) << failure;
    }
}

inline ExpectedBox ReportOf(const FileTitle& file, const Failure& failure)
{
    const QString error = QLatin1String(failure.report);
    const QString title = QLatin1String(file.title);
    return file.behind == nullptr
               ? Report(title + error)
               : Report(title + error.mid(error.indexOf(QLatin1Char(' ')) + 1) + QLatin1String(file.behind));
}

inline std::string NativeOf(const DayPage& page)
{
    return page.folder.Native().toStdString();
}

} // namespace zelvia::test

Q_DECLARE_METATYPE(zelvia::test::Failure)
Q_DECLARE_METATYPE(zelvia::test::FileTitle)
