// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <QApplication>
#include <QCursor>
#include <QFont>

namespace zelvia
{

/// The application under the toolkit's rules: each event passes the focus controller first, message boxes and the
/// screen's pointer are Qt's, Qt's own texts are Italian.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    ~Application() override;

    bool notify(QObject* receiver, QEvent* event) override;
};

/// A font by its name, with its metric kin as fallback; the size in logical pixels.
QFont PageFont(TextView family, int pixels);

/// Reads a Windows cursor file with its hot spot. Raises error 53 or the like when it can't be opened, 481 when it
/// holds no picture.
QCursor LoadCursor(TextView path);

/// Takes the lock of the program's folder for the life of the process. False when another run holds it; a folder that
/// can't be written counts as free.
bool TakeInstanceLock();

} // namespace zelvia
