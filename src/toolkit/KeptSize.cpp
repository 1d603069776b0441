// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/KeptSize.h"

#include "core/StateFolder.h"
#include "toolkit/WindowPlaces.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QSaveFile>

namespace zelvia
{
namespace
{

constexpr char kMaximized[] = "massima"; ///< Follows width and height in the file.

} // namespace

KeptSize::KeptSize(QWidget& window, const QSize& designed) : QObject(&window), window_(window), given_(Read())
{
    const QSize wanted = given_.size.isEmpty() ? designed : given_.size;
    given_.size = wanted.boundedTo(WindowPlaces::Instance().RoomFor(window));
    window.resize(given_.size);
    if (given_.maximized) {
        window.setWindowState(Qt::WindowMaximized);
    }
    window.installEventFilter(this);
}

QString KeptSize::File() const
{
    return QString::fromStdString(StateFile(window_.objectName().toStdString()).string());
}

/// Nothing where there is no file, or none that can be read.
KeptSize::Size KeptSize::Read() const
{
    QFile file(File());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    constexpr qint64 longest = 64;
    const QList<QByteArray> words = file.read(longest).simplified().split(' ');
    return {{words.value(0).toInt(), words.value(1).toInt()}, words.value(2) == kMaximized};
}

void KeptSize::Write(const Size& size) const
{
    QDir().mkpath(QFileInfo(File()).path());
    QSaveFile file(File());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray::number(size.size.width()) + ' ' + QByteArray::number(size.size.height()) +
                   (size.maximized ? QByteArray(" ") + kMaximized : QByteArray()) + '\n');
        file.commit();
    }
}

KeptSize::Size KeptSize::Shown() const
{
    const bool maximized = window_.isMaximized();
    return {maximized ? window_.normalGeometry().size() : window_.size(), maximized};
}

bool KeptSize::eventFilter(QObject* /*watched*/, QEvent* event)
{
    // A window that has been as large as it is from the start on keeps nothing: a larger screen has more room for it.
    if (event->type() == QEvent::Hide && !event->spontaneous() && Shown() != given_) {
        given_ = Shown();
        Write(given_);
    }
    return false;
}

} // namespace zelvia
