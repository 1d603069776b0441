// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Sheet.h"

#include <QByteArrayList>
#include <QImage>
#include <QList>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace zelvia::test
{

/// A word of a page; places in points from the top left corner of the paper.
struct PrintedWord {
    double left;
    double right;
    double top;
    QString text;
};

struct PrintedPage {
    QSizeF size; ///< Points.
    QList<PrintedWord> words;
};

/// The PDF that the print server of the test took.
class PrintedPdf
{
public:
    /// Waits for the job that comes next and reads it.
    static PrintedPdf Next();
    /// The jobs that have come out so far.
    static int Jobs();

    const QList<PrintedPage>& Pages() const { return pages_; }
    /// The faces in it, such as "LiberationSerif-Italic", without the tags of their subsets.
    QByteArrayList Fonts() const;
    /// A page as a picture of `dotsPerInch`, grey.
    QImage Picture(int page, int dotsPerInch) const;
    const QString& Path() const { return path_; }
    /// The name of the job, as the print server has it.
    const QString& Job() const { return job_; }
    /// Its attributes, such as "media=A4".
    const QStringList& Attributes() const { return attributes_; }

    /// What is wrong with the place of the sheet's texts and rules on the paper, a line each; empty when each text
    /// begins within a quarter of a cell of its place and each rule is drawn.
    QString Faults(const Sheet& sheet) const;

private:
    explicit PrintedPdf(QString path);
    QString TextFault(int page, const SheetText& text) const;

    QString path_;
    QString job_;
    QStringList attributes_;
    QList<PrintedPage> pages_;
};

} // namespace zelvia::test
