// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/plan/SaveTable.h"

#include "core/Conversions.h"
#include "core/RunTimeError.h"
#include "diary/Module1.h"
#include "diary/TableModel.h"
#include "diary/Workspace.h"

#include <algorithm>

namespace zelvia
{

using namespace Module1;

bool SalvaTabellaConNome(CommonDialog& dialog)
{
    bool again = false;
    bool written = false;
    TrapWith(
        [&] {
            FlagTabellaSalvata = 0;
            dialog.CancelError = true;
            dialog.Flags = DialogFlags::OverwritePrompt | DialogFlags::HideReadOnly | DialogFlags::NoChangeDir;
            dialog.InitDir = CartellaDiario;
            dialog.Filter = "File Tabella (*.tab)|*.tab|";
            dialog.DialogTitle = "Salva Tabella con nome";
            dialog.ShowSave();
            const Text folder = Left(dialog.FileName, std::max<std::ptrdiff_t>(InStrRev(dialog.FileName, "\\") - 1, 0));
            if (folder == CartellaDiario) {
                written = ScriviTabella(dialog.FileName);
                return;
            }
            dialog.FileName = NomeSenzaCartella(dialog.FileName);
            MsgBox(" LA TABELLA NON PUO' ESSERE SALVATA IN UN ALTRA CARTELLA   ", MsgButtons::OK, MsgIcon::Critical);
            again = true;
            throw ErroreRunTime(Errore::Annullato);
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                ReportError(kBareTitle, error);
                return;
            }
            FlagTabellaSalvata = 1;
            if (again) {
                written = SalvaTabellaConNome(dialog);
            }
        });
    return written;
}

} // namespace zelvia
