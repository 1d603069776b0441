// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/bookpages/BookBinder.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace zelvia
{
namespace
{

using Object = QPDFObjectHandle;

/// The bookmarks as a tree of PDF objects, each one linked with its parent and its neighbours.
class Outline
{
public:
    Outline(QPDF& pdf, const PageFlow& flow)
        : pdf_(pdf), flow_(flow), pages_(QPDFPageDocumentHelper(pdf).getAllPages()),
          root_(pdf.makeIndirectObject(Object::parse("<< /Type /Outlines >>")))
    {
        std::size_t next = 0;
        AddChildren(root_, 0, next);
        pdf.getRoot().replaceKey("/Outlines", root_);
    }

private:
    Object Item(const BookMark& mark, const Object& parent)
    {
        constexpr double pointsPerPixel = 0.75;
        const BookPaper& paper = flow_.Paper();
        Object page = pages_[static_cast<std::size_t>(mark.page)].getObjectHandle();
        const double height = page.getKey("/MediaBox").getArrayItem(3).getNumericValue();
        const double y = (PixelsOf(paper.top, paper) + mark.y) * paper.scale * pointsPerPixel;
        Object target = Object::newArray(
            {page, Object::newName("/XYZ"), Object::newNull(), Object::newReal(height - y, 1), Object::newNull()});
        Object item = pdf_.makeIndirectObject(Object::newDictionary());
        item.replaceKey("/Title", Object::newUnicodeString(mark.title.toStdString()));
        item.replaceKey("/Parent", parent);
        item.replaceKey("/Dest", target);
        return item;
    }

    /// Adds the marks of a level from `next` on, with those below them; only the chapters are open.
    void AddChildren(Object parent, int level, std::size_t& next)
    {
        const std::vector<BookMark>& marks = flow_.Marks();
        int count = 0;
        Object last = Object::newNull();
        while (next < marks.size() && marks[next].level >= level) {
            Object item = Item(marks[next++], parent);
            if (last.isNull()) {
                parent.replaceKey("/First", item);
            } else {
                last.replaceKey("/Next", item);
                item.replaceKey("/Prev", last);
            }
            last = item;
            ++count;
            AddChildren(item, level + 1, next);
        }
        if (count > 0) {
            parent.replaceKey("/Last", last);
            parent.replaceKey("/Count", Object::newInteger(level == 0 ? count : -count));
        }
    }

    QPDF& pdf_;
    const PageFlow& flow_;
    std::vector<QPDFPageObjectHelper> pages_;
    Object root_;
};

} // namespace

QByteArray BindBook(const QByteArray& bytes, const PageFlow& flow)
{
    QPDF pdf;
    pdf.processMemoryFile("libro", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const Outline outline(pdf, flow);
    Object root = pdf.getRoot();
    root.replaceKey("/PageMode", Object::newName("/UseOutlines"));
    root.replaceKey("/PageLayout", Object::newName("/TwoPageRight"));
    root.replaceKey("/ViewerPreferences", Object::parse("<< /Duplex /DuplexFlipLongEdge /DisplayDocTitle true >>"));
    root.replaceKey("/Lang", Object::newString("it-IT"));
    root.removeKey("/Metadata");
    Object info = pdf.getTrailer().getKey("/Info");
    info.removeKey("/CreationDate");
    info.removeKey("/ModDate");
    pdf.getTrailer().removeKey("/ID"); // Qt 6.8 gives one, at random.
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setDeterministicID(true);
    writer.write();
    const auto bound = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(bound->getBuffer()), static_cast<qsizetype>(bound->getSize())};
}

} // namespace zelvia
