// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class QHelpEngine;

namespace zelvia
{

/// The program's help file, opened. The help engine writes its collection and its word index into a
/// temporary folder of the user, deleted with the object.
class HelpFile
{
public:
    /// Opens and checks the file at a native path. Raises error 51 when it is damaged or not this program's help file,
    /// 75 when the temporary folder can't be made.
    explicit HelpFile(const QString& path);
    ~HelpFile();
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

    QHelpEngine& Engine() const { return *engine_; }

    /// A page, picture or style sheet; empty when there is none at the address.
    QByteArray Data(const QUrl& address) const;

    static QUrl FirstPage();

    /// The address of the topic of a window or menu entry of that name; the first page for an unknown name.
    QUrl Topic(const QString& name) const;

private:
    /// True when every file of the guide can be read: the format has a checksum for each.
    bool IsWhole() const;

    QTemporaryDir folder_;
    std::unique_ptr<QHelpEngine> engine_; ///< Destroyed before the folder that it writes to.
};

} // namespace zelvia
