// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/guide/HelpFile.h"

#include <QTextBrowser>

namespace zelvia
{

/// A page of the guide with its links. It shows only what is in the help file.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    HelpPage(const HelpFile& file, QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

    /// Selects the next or the previous occurrence of a text, wrapping around at the end of the page. False when there
    /// is none.
    bool FindText(const QString& text, bool backwards);

    /// Selects a text or, when its words are not together, the first paragraph that holds the most of them.
    void ShowWords(const QString& text);

protected:
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;

private:
    void ShowCursorAbove();
    QImage Fitted(const QByteArray& picture) const;

    const HelpFile& file_;
};

} // namespace zelvia
