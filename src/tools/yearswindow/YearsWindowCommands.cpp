// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons of the window do.
#include "core/Files.h"
#include "core/RunTimeError.h"
#include "diary/StatisticSheets.h"
#include "toolkit/Accessible.h"
#include "toolkit/CommonDialog.h"
#include "toolkit/Printer.h"
#include "toolkit/QtText.h"
#include "tools/yearswindow/YearsWindow.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QSaveFile>

namespace zelvia
{

void YearsWindow::CopyPicture()
{
    QGuiApplication::clipboard()->setImage(view_->Picture());
    Say(tr("Il grafico è negli appunti."));
}

void YearsWindow::CopyTable()
{
    QGuiApplication::clipboard()->setText(model_.Text());
    Say(tr("La tabella è negli appunti."));
}

void YearsWindow::SavePicture()
{
    CommonDialog dialog;
    dialog.CancelError = true;
    dialog.Flags = DialogFlags::OverwritePrompt;
    dialog.InitDir = SystemPath(QDir::homePath().toStdString());
    dialog.Filter = "Immagine PNG (*.png)|*.png|";
    dialog.DialogTitle = "Salva il grafico";
    dialog.FileName = dialog.InitDir + "\\" + FromQString(view_->Shown().title) + ".png";
    TrapWith(
        [&] {
            dialog.ShowSave();
            const QString path = QString::fromStdString(NativePath(dialog.FileName).string());
            QSaveFile file(path);
            const bool saved = file.open(QIODevice::WriteOnly) && view_->Picture().save(&file, "PNG") && file.commit();
            Say(saved ? tr("Il grafico è in «%1».").arg(path)
                      : tr("Il grafico non è stato salvato in «%1»: %2.").arg(path, file.errorString()));
        },
        [&](const ErroreRunTime& error) {
            if (error.Number() != Errore::Annullato) {
                Say(tr("Il grafico non è stato salvato: %1.").arg(ToQString(error.Description())));
            }
        });
}

/// As the program prints its charts: through the clipboard, which is empty afterwards.
void YearsWindow::Print()
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    Trap(kPrintErrors, [&] {
        PrintSheet(ChartSheet(read_.today, [&] { clipboard.setImage(view_->Picture()); }));
        clipboard.clear();
        Say(tr("Il grafico è in stampa."));
    });
}

void YearsWindow::Say(const QString& what)
{
    said_->setText(what);
    said_->setVisible(!what.isEmpty());
    TellText(*said_);
}

} // namespace zelvia
