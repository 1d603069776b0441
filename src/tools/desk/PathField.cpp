// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/desk/PathField.h"

#include "tools/desk/Desk.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace zelvia
{

PathField::PathField(Kind kind, const QString& accessibleName) : kind_(kind), edit_(new QLineEdit)
{
    auto* choose = new QPushButton(tr("&Scegli…"));
    edit_->setObjectName(QStringLiteral("file"));
    edit_->setAccessibleName(accessibleName);
    choose->setObjectName(QStringLiteral("choose"));
    choose->setAccessibleName(tr("Scegli: %1").arg(accessibleName));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(edit_, 1);
    row->addWidget(choose);
    setFocusProxy(edit_);
    connect(edit_, &QLineEdit::textChanged, this, &PathField::Changed);
    connect(choose, &QPushButton::clicked, this, &PathField::Choose);
}

std::filesystem::path PathField::Path() const
{
    return PathTyped(edit_->text());
}

void PathField::SetFilter(const QString& filter, const QString& suffix)
{
    filter_ = filter;
    suffix_ = suffix;
}

QLabel* PathField::MakeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setBuddy(edit_);
    return caption;
}

void PathField::Choose()
{
    const bool saves = kind_ == Kind::SaveFile;
    const QString typed = QString::fromStdString(Path().string());
    QFileDialog dialog(this,
                       saves ? tr("Scegliere il file da scrivere") : tr("Scegliere il diario dell'altro computer"),
                       typed.isEmpty() ? QDir::homePath() : QFileInfo(typed).path(), filter_);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(suffix_);
    // That a file is there already is said on the page.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!typed.isEmpty()) {
        dialog.selectFile(QFileInfo(typed).fileName());
    }
    if (dialog.exec() == QDialog::Accepted) {
        edit_->setText(dialog.selectedFiles().value(0));
    }
}

QString AskForFolder(QWidget& parent, const QString& title, const QString& start)
{
    QFileDialog dialog(&parent, title, start);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace zelvia
