// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/guide/HelpFile.h"

#include <QTextBrowser>

namespace zelvia
{

/// A page of the guide with its links. It shows what lies in the help file and nothing else.
class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    HelpPage(const HelpFile& file, QWidget* parent);

    QVariant loadResource(int type, const QUrl& name) override;

    /// Selects the next place of a text, or the one before; goes on at the other end of the page. False when the page
    /// has none.
    bool FindText(const QString& text, bool backwards);

    /// Selects the place of a text or, where its words stand apart, the first paragraph that holds the most of them.
    void ShowWords(const QString& text);

protected:
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;

private:
    void ShowCursorAbove();
    QImage Fitted(const QByteArray& picture) const;

    const HelpFile& file_;
};

} // namespace zelvia
