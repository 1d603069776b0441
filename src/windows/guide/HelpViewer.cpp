// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/guide/HelpViewer.h"

#include "core/CMouse.h"
#include "core/Files.h"
#include "translation/Translation.h"
#include "windows/guide/HelpWindow.h"

#include <QDateTime>
#include <QFileInfo>

#include <utility>

namespace zelvia
{
namespace
{

QString StampOf(const QString& path)
{
    const QFileInfo file(path);
    return QStringLiteral("%1|%2|%3").arg(path).arg(file.lastModified().toMSecsSinceEpoch()).arg(file.size());
}

} // namespace

HelpViewer::HelpViewer() = default;
HelpViewer::~HelpViewer() = default;

void HelpViewer::Open(TextView file)
{
    const FileHandle readable = OpenFile(file, OpenMode::Input);
    const QString path = QString::fromStdString(NativePath(file).string());
    QString stamp = StampOf(path);
    if (window_ == nullptr || stamp != stamp_) {
        CMouse pointer;
        pointer.SetPointer(MousePointer::Hourglass);
        InstallGuideTranslation();
        window_ = std::make_unique<HelpWindow>(std::make_unique<HelpFile>(path));
        stamp_ = std::move(stamp);
    }
}

void HelpViewer::WinHelp(TextView file, int command, const QString& topic)
{
    Open(file);
    switch (command) {
    case HelpCommand::Search: window_->ShowSearch(); break;
    case HelpCommand::Topic: window_->ShowTopic(topic); break;
    default: window_->ShowContents(); break;
    }
}

void HelpViewer::Close()
{
    window_.reset();
}

} // namespace zelvia
