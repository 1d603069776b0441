// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/guide/HelpPage.h"

#include "toolkit/Fonts.h"

#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace zelvia
{

namespace
{

// Of a picture, in logical pixels.
constexpr int kNarrowest = 200;
constexpr int kWidest = 640;

} // namespace

HelpPage::HelpPage(const HelpFile& file, QWidget* parent) : QTextBrowser(parent), file_(file)
{
    setObjectName(QStringLiteral("page"));
    setAccessibleName(tr("Pagina della Guida"));
    setOpenExternalLinks(false);
    constexpr int readable = 16;
    setFont(PrintFont(readable));
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    const QByteArray bytes = file_.Data(source().resolved(name));
    if (type == QTextDocument::ImageResource) {
        return Fitted(bytes);
    }
    return bytes;
}

/// Drawing scales a picture without smoothing it, so one that is too wide for the page is scaled down here, in device
/// pixels.
QImage HelpPage::Fitted(const QByteArray& picture) const
{
    constexpr int margins = 60;
    const int widest = std::clamp(viewport()->width() - margins, kNarrowest, kWidest);
    QImage image = QImage::fromData(picture);
    if (image.width() <= widest) {
        return image;
    }
    const int pixels = std::min(image.width(), qRound(widest * devicePixelRatioF()));
    image = image.scaledToWidth(pixels, Qt::SmoothTransformation);
    image.setDevicePixelRatio(pixels / qreal(widest));
    return image;
}

void HelpPage::doSetSource(const QUrl& address, QTextDocument::ResourceType type)
{
    const QUrl place = source().resolved(address);
    if (place.scheme() == QLatin1String("qthelp") && !file_.Data(place).isEmpty()) {
        QTextBrowser::doSetSource(place, type);
    }
}

bool HelpPage::FindText(const QString& text, bool backwards)
{
    const QTextDocument::FindFlags flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, flags)) {
        return true;
    }
    const QTextCursor before = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(text, flags)) {
        return true;
    }
    setTextCursor(before);
    return false;
}

void HelpPage::ShowWords(const QString& text)
{
    moveCursor(QTextCursor::Start);
    if (FindText(text, false)) {
        ShowCursorAbove();
        return;
    }
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    qsizetype most = 0;
    QTextBlock best;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const QString paragraph = block.text();
        const qsizetype held = std::count_if(words.begin(), words.end(), [&](const QString& word) {
            return paragraph.contains(word, Qt::CaseInsensitive);
        });
        if (held > most) {
            most = held;
            best = block;
        }
    }
    if (most > 0) {
        QTextCursor cursor(best);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        ShowCursorAbove();
    }
}

/// The reader wants what follows the place found.
void HelpPage::ShowCursorAbove()
{
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - viewport()->height() / 4);
}

} // namespace zelvia
