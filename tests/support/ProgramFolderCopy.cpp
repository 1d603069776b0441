// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ProgramFolderCopy.h"

#include "core/Files.h"

#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace zelvia::test
{
namespace
{

QString SampleFolder()
{
    return QStringLiteral(ZELVIA_SOURCE_DIR "/share/demo/");
}

/// A Windows cursor of 16 by 16 opaque pixels, its hot spot at 3, 1.
QByteArray HandPointer()
{
    constexpr quint8 side = 16;
    constexpr quint32 pixels = side * side * 4;
    constexpr quint32 mask = side * 4;
    constexpr quint32 bitmapHeader = 40;
    constexpr quint32 fileHeader = 22;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QDataStream out(&buffer);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(2) << quint16(1);
    out << side << side << quint8(0) << quint8(0) << quint16(3) << quint16(1);
    out << quint32(bitmapHeader + pixels + mask) << fileHeader;
    out << bitmapHeader << qint32(side) << qint32(2 * side) << quint16(1) << quint16(32) << quint32(0)
        << quint32(pixels) << qint32(0) << qint32(0) << quint32(0) << quint32(0);
    for (int i = 0; i < side * side; ++i) {
        out << quint32(0xFF2040A0);
    }
    for (quint32 i = 0; i < mask; ++i) {
        out << quint8(0);
    }
    return buffer.data();
}

} // namespace

ProgramFolderCopy::ProgramFolderCopy() : folder_(QDir::tempPath() + QStringLiteral("/zelvia-XXXXXX"))
{
    if (!folder_.isValid() || folder_.path().contains(QLatin1Char('.'))) {
        qFatal("no temporary folder without a dot in its path");
    }
    for (const QString& file : {QStringLiteral("ZelviaFile/prova.zlv")}) {
        Write(file, SampleFile(file));
    }
    for (const QString& name : QDir(SampleFolder() + QStringLiteral("prova")).entryList(QDir::Files)) {
        Write(QStringLiteral("prova/") + name, SampleFile(QStringLiteral("prova/") + name));
    }
    Write(QStringLiteral("nomeload"), "\"\"\r\n");
    Write(QStringLiteral("mano.cur"), HandPointer());
}

QString ProgramFolderCopy::Native(const QString& path) const
{
    return path.isEmpty() ? folder_.path() : folder_.path() + QLatin1Char('/') + path;
}

Text ProgramFolderCopy::System(const QString& path) const
{
    return SystemPath(Native(path).toStdString());
}

bool ProgramFolderCopy::Exists(const QString& path) const
{
    return QFileInfo::exists(Native(path));
}

QByteArray ProgramFolderCopy::Read(const QString& path) const
{
    QFile file(Native(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file: ") + path.toUtf8();
}

void ProgramFolderCopy::Write(const QString& path, const QByteArray& bytes) const
{
    MakeFolder(QFileInfo(path).path());
    QFile file(Native(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

void ProgramFolderCopy::Remove(const QString& path) const
{
    const QFileInfo info(Native(path));
    if (!(info.isDir() ? QDir(info.filePath()).removeRecursively() : QFile::remove(info.filePath()))) {
        qFatal("cannot remove %s", qPrintable(info.filePath()));
    }
}

void ProgramFolderCopy::MakeFolder(const QString& path) const
{
    if (!QDir(Native()).mkpath(path)) {
        qFatal("cannot make %s", qPrintable(path));
    }
}

void ProgramFolderCopy::Block(const QString& path) const
{
    if (Exists(path)) {
        Remove(path);
    }
    MakeFolder(path);
}

void ProgramFolderCopy::Dangle(const QString& path) const
{
    if (Exists(path)) {
        Remove(path);
    }
    if (!QFile::link(Native(QStringLiteral("missing/file")), Native(path))) {
        qFatal("cannot link %s", qPrintable(path));
    }
}

QStringList ProgramFolderCopy::Files(const QString& path) const
{
    const QDir root(Native(path));
    QStringList names;
    QDirIterator walk(root.path(), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        names << root.relativeFilePath(walk.next());
    }
    names.sort();
    return names;
}

QByteArray SampleFile(const QString& path)
{
    QFile file(SampleFolder() + path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file.fileName()));
    }
    return file.readAll();
}

QStringList FullSet()
{
    return {QStringLiteral("CalendarioGare"),  QStringLiteral("Fondo.lsx"),    QStringLiteral("ListePercorso"),
            QStringLiteral("Lunghezza.lsx"),   QStringLiteral("Modo.lsx"),     QStringLiteral("Percorso.lsx"),
            QStringLiteral("Temperatura.lsx"), QStringLiteral("TempoAtm.lsx"), QStringLiteral("Tipo.lsx"),
            QStringLiteral("nometab")};
}

QStringList ListNames()
{
    return {QStringLiteral("Percorso"),   QStringLiteral("Lunghezza"), QStringLiteral("Modo"),
            QStringLiteral("Fondo"),      QStringLiteral("Tipo"),      QStringLiteral("TempoAtm"),
            QStringLiteral("Temperatura")};
}

} // namespace zelvia::test
