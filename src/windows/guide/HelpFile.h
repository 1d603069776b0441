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

/// The program's help file, opened. What the help engine writes, its collection and the index of the words, lies in a
/// temporary folder of the user's own, which goes with the object.
class HelpFile
{
public:
    /// Opens and examines the file at a path of the machine. Raises error 51 when it is no help file of this program or
    /// a damaged one, 75 when there is no place for the temporary folder.
    explicit HelpFile(const QString& path);
    ~HelpFile();
    HelpFile(const HelpFile&) = delete;
    HelpFile& operator=(const HelpFile&) = delete;

    QHelpEngine& Engine() const { return *engine_; }

    /// A page, picture or style sheet; empty when there is none at the address.
    QByteArray Data(const QUrl& address) const;

    static QUrl FirstPage();

    /// The place that a topic goes by a name of, such as that of a window or a menu entry; the first page for an
    /// unknown name.
    QUrl Topic(const QString& name) const;

private:
    /// Every file of the guide must come out whole: the format has a check sum for each.
    bool IsWhole() const;

    QTemporaryDir folder_;
    std::unique_ptr<QHelpEngine> engine_; ///< Ends before the folder that it writes to.
};

} // namespace zelvia
