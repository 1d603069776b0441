// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PageStyle.h"

#include "toolkit/DrawnIcon.h"
#include "toolkit/PagePalette.h"
#include "toolkit/Pixels.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace zelvia
{
namespace
{

/// Qt's Fusion style with flat printed buttons, borders that can be seen, and a ring around whatever has the focus,
/// however it got there. Its icons are drawn here: looking for one in the desktop's themes loads every plugin for
/// pictures, and finds another one on each desktop.
class Style : public QProxyStyle
{
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

/// The frame of a row that has the focus, or the ring of anything else.
void DrawFocus(QPainter& painter, const QStyleOption& option)
{
    // Only the options of rows name the colour behind them.
    const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    if (focus == nullptr || !focus->backgroundColor.isValid()) {
        DrawFocusRing(painter, option.rect, option.palette.color(QPalette::Button));
        return;
    }
    const bool chosen = focus->backgroundColor == option.palette.color(QPalette::Highlight);
    DrawRowFrame(painter, option.rect, option.palette.color(chosen ? QPalette::Highlight : QPalette::Base));
}

/// A button as it is printed: flat, darker under the pointer and while it is pressed. The one that Enter presses in a
/// dialog has a heavier border.
void DrawButton(QPainter& painter, const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool isDefault = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool down = (option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0;
    const bool hovered = option.state.testFlag(QStyle::State_Enabled) && option.state.testFlag(QStyle::State_MouseOver);
    constexpr int pressed = 112;
    constexpr int lit = 105;
    QColor fill = option.palette.color(QPalette::Button);
    if (down || hovered) {
        fill = fill.darker(down ? pressed : lit);
    }
    {
        const Pixels pixels(painter);
        painter.fillRect(pixels.Of(option.rect), fill);
    }
    DrawBorder(painter, option.rect, EdgeInk(fill), isDefault ? 2 : 1);
}

/// The round border of what is one choice of several.
void DrawRing(QPainter& painter, const QRect& place, const QColor& ink)
{
    constexpr qreal inside = 0.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(place).adjusted(inside, inside, -inside, -inside));
    painter.restore();
}

/// A scroll bar whose slider can't be taken for the groove: it looks as a button does.
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QStyle& style, const QWidget* widget)
{
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ScrollBar, &option, control, widget);
    };
    {
        const Pixels pixels(painter);
        painter.fillRect(pixels.Of(option.rect), option.palette.color(QPalette::Window));
    }
    if (option.maximum > option.minimum) {
        QStyleOption slider(option);
        slider.rect = part(QStyle::SC_ScrollBarSlider);
        slider.state.setFlag(QStyle::State_MouseOver,
                             option.state.testFlag(QStyle::State_MouseOver) &&
                                 option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider));
        slider.state &= ~(QStyle::State_Sunken | QStyle::State_On);
        DrawButton(painter, slider);
    }
    const bool upright = option.orientation == Qt::Vertical;
    QStyleOption arrow(option);
    arrow.rect = part(QStyle::SC_ScrollBarSubLine);
    style.drawPrimitive(upright ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowLeft, &arrow, &painter);
    arrow.rect = part(QStyle::SC_ScrollBarAddLine);
    style.drawPrimitive(upright ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight, &arrow, &painter);
}

/// The arrow beside what can be opened, in the ink of its row.
void DrawBranch(const QStyle& style, const QStyleOption& option, QPainter& painter)
{
    if (!option.state.testFlag(QStyle::State_Children)) {
        return;
    }
    QStyleOption arrow(option);
    constexpr int side = 9;
    arrow.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, {side, side}, option.rect);
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    const QColor ink = option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text);
    for (const QPalette::ColorRole role : {QPalette::ButtonText, QPalette::WindowText}) {
        arrow.palette.setColor(role, ink);
    }
    const bool open = option.state.testFlag(QStyle::State_Open);
    style.drawPrimitive(open ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight, &arrow, &painter);
}

/// A number's box: its arrows are printed on a flat field of their own.
void DrawSpinBox(QPainter& painter, const QStyleOptionSpinBox& option, const QStyle& style, const QWidget* widget)
{
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_SpinBox, &option, control, widget);
    };
    const QRect up = part(QStyle::SC_SpinBoxUp);
    const QRect down = part(QStyle::SC_SpinBoxDown);
    const QRect buttons = up | down;
    {
        const Pixels pixels(painter);
        painter.fillRect(pixels.Of(option.rect), option.palette.color(QPalette::Base));
        painter.fillRect(pixels.Of(buttons), option.palette.color(QPalette::Button));
    }
    const struct {
        QRect place;
        QStyle::SubControl control;
        QAbstractSpinBox::StepEnabledFlag step;
        QStyle::PrimitiveElement drawing;
    } arrows[] = {{up, QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, QStyle::PE_IndicatorArrowUp},
                  {down, QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, QStyle::PE_IndicatorArrowDown}};
    for (const auto& one : arrows) {
        QStyleOption arrow(option);
        const bool steps = option.state.testFlag(QStyle::State_Enabled) && option.stepEnabled.testFlag(one.step);
        if (steps && option.activeSubControls == one.control) {
            constexpr int pressed = 112;
            constexpr int lit = 105;
            const Pixels pixels(painter);
            painter.fillRect(pixels.Of(one.place),
                             option.palette.color(QPalette::Button)
                                 .darker(option.state.testFlag(QStyle::State_Sunken) ? pressed : lit));
        }
        arrow.state.setFlag(QStyle::State_Enabled, steps);
        if (!steps) {
            arrow.palette.setCurrentColorGroup(QPalette::Disabled);
        }
        arrow.rect = one.place;
        style.drawPrimitive(one.drawing, &arrow, &painter);
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    const bool focused = option->state.testFlag(State_HasFocus);
    const QColor base = option->palette.color(QPalette::Base);
    switch (element) {
    case PE_FrameFocusRect: DrawFocus(*painter, *option); break;
    case PE_PanelButtonCommand: DrawButton(*painter, *option); break;
    case PE_FrameLineEdit:
    case PE_Frame:
        focused ? DrawFocusRing(*painter, option->rect, base) : DrawBorder(*painter, option->rect, EdgeInk(base));
        break;
    case PE_PanelMenu:
        painter->fillRect(option->rect, base);
        DrawBorder(*painter, option->rect, EdgeInk(base));
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        DrawBorder(*painter, option->rect, EdgeInk(base));
        break;
    case PE_IndicatorRadioButton:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        DrawRing(*painter, option->rect, EdgeInk(base));
        break;
    case PE_PanelScrollAreaCorner: {
        const Pixels pixels(*painter);
        painter->fillRect(pixels.Of(option->rect), option->palette.color(QPalette::Window));
        break;
    }
    case PE_IndicatorBranch: DrawBranch(*this, *option, *painter); break;
    case PE_PanelTipLabel:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        DrawBorder(*painter, option->rect, EdgeInk(base));
        break;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if ((element == CE_PushButton || element == CE_TabBarTab) && option->state.testFlag(State_HasFocus)) {
        DrawFocusRing(*painter, option->rect, option->palette.color(QPalette::Button));
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar) {
        DrawScrollBar(*painter, *bar, *this, widget);
        return;
    }
    if (const auto* box = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
        box != nullptr && control == CC_SpinBox) {
        DrawSpinBox(*painter, *box, *this, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    if (control == CC_ComboBox || control == CC_SpinBox) {
        const QColor fill = option->palette.color(control == CC_ComboBox ? QPalette::Button : QPalette::Base);
        option->state.testFlag(State_HasFocus) ? DrawFocusRing(*painter, option->rect, fill)
                                               : DrawBorder(*painter, option->rect, EdgeInk(fill));
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    // As wide as the focus ring.
    constexpr int frame = 2;
    const bool scrolls = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    return metric == PM_DefaultFrameWidth && scrolls ? frame : QProxyStyle::pixelMetric(metric, option, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const
{
    // Of a button's text from its border.
    constexpr int distance = 14;
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_PushButton) {
        size.setWidth(qMax(size.width(), contents.width() + 2 * distance));
    }
    return size;
}

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // The text of a message box, which is shorter than the icon beside it, stands at its middle.
    if (widget->objectName() == QLatin1String("qt_msgbox_label")) {
        widget->setMinimumHeight(pixelMetric(PM_MessageBoxIconSize, nullptr, widget->window()));
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
    case SH_MessageBox_TextInteractionFlags: return Qt::TextSelectableByMouse;
    default: return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    const IconDrawing drawing = StandardDrawing(icon);
    return drawing != nullptr ? DrawnIcon(drawing) : QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace

QStyle* MakePageStyle()
{
    return new Style;
}

} // namespace zelvia
