// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSize>
#include <QWidget>

namespace zelvia
{

/// Gives a window the size that the user gave it in an earlier run, as far as the screen has room, and keeps the one
/// that it has when it closes. It is kept in the user's own folder for such things ($XDG_STATE_HOME).
class KeptSize : public QObject
{
    Q_OBJECT

public:
    /// The window has not been shown; `designed` is its size until the user changes that.
    KeptSize(QWidget& window, const QSize& designed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Size {
        QSize size; ///< Unless maximized.
        bool maximized = false;
        bool operator==(const Size&) const = default;
    };

    QString File() const;
    Size Read() const;
    void Write(const Size& size) const;
    Size Shown() const;

    QWidget& window_;
    Size given_;
};

} // namespace zelvia
