// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The start of a bare window of the number of labels, width and height given, up to its first paint.
#include "bench/BareWindow.h"
#include "bench/FirstPaint.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char* argv[])
{
    if (argc < 4) {
        return 2;
    }
    const QApplication application(argc, argv);
    QWidget window;
    const int labels = std::atoi(argv[1]);
    zelvia::bench::FillBareWindow(window, labels, QSize(std::atoi(argv[2]), std::atoi(argv[3])));
    window.show();
    const zelvia::bench::FirstPaint firstPaint(window, labels);
    return QCoreApplication::exec();
}
