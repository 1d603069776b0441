// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/BoxScript.h"

#include <QStringList>

namespace zelvia::test
{

/// The files of a diary's folder as a first use lays them down, sorted.
QStringList FullSet();

/// The seven lists that have a file, in the order in which they are written and read.
QStringList ListNames();

/// Error numbers with their descriptions, as a report shows them.
inline const QString kNotFound = QStringLiteral("53 File non trovato");
inline const QString kDenied = QStringLiteral("75 Errore di accesso al file o alla cartella");
inline const QString kNoFolder = QStringLiteral("76 Cartella non trovata");

/// The bare report of a shared routine.
ExpectedBox BareReport(const QString& error);
/// The reports of the seven lists.
void ExpectListsNotSaved(BoxScript& script, const QString& error);
void ExpectListsNotLoaded(BoxScript& script, const QString& error);
/// The route reader's own form.
ExpectedBox RoutesNotLoaded(const QString& description);
/// The reports of a start that knows no folder of the diary: nothing can be written, and nothing read.
void ExpectNoFolder(BoxScript& script);

ExpectedBox SaveQuestion(QMessageBox::StandardButton press);
ExpectedBox SaveRefusal();
ExpectedBox OpenRefusal();
/// The refusal of a diary whose folder would carry the name of a file.
ExpectedBox FolderNameRefusal(const QString& name);

} // namespace zelvia::test
