// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/Accessible.h"
#include "toolkit/Button.h"
#include "toolkit/Chart.h"
#include "toolkit/FocusController.h"
#include "toolkit/Label.h"
#include "toolkit/Picture.h"
#include "toolkit/UpDown.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QMessageBox>

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

namespace zelvia
{
namespace
{

/// Runs what a reader asks for after its call has been answered: it may bring up a box. What a box blocks does nothing.
void RunFor(QWidget& widget, std::function<void()> action)
{
    QMetaObject::invokeMethod(
        &widget,
        [&widget, action = std::move(action)] {
            const QWidget* modal = QApplication::activeModalWidget();
            if (widget.isVisible() && widget.isEnabled() && (modal == nullptr || modal == widget.window())) {
                action();
            }
        },
        Qt::QueuedConnection);
}

/// True for what only decorates: a text without a name that shows no word, a drawing without a name. The nameless place
/// of a window's focus is not among them.
bool IsSilent(const QWidget& widget)
{
    if (!widget.accessibleName().isEmpty()) {
        return false;
    }
    if (const auto* label = qobject_cast<const Label*>(&widget)) {
        const QString text = label->text();
        return std::none_of(text.begin(), text.end(), [](QChar character) { return character.isLetterOrNumber(); });
    }
    return qobject_cast<const Picture*>(&widget) != nullptr && !widget.objectName().isEmpty();
}

/// A text on the page. With a name of its own, what it shows is its value.
class AccessibleLabel : public QAccessibleWidget
{
public:
    explicit AccessibleLabel(Label& label) : QAccessibleWidget(&label), label_(label) {}

    QAccessible::Role role() const override { return label_.Acts() ? QAccessible::Button : QAccessible::StaticText; }

    QString text(QAccessible::Text kind) const override
    {
        const bool named = !label_.accessibleName().isEmpty();
        switch (kind) {
        case QAccessible::Name: return named ? label_.accessibleName() : label_.text().simplified();
        case QAccessible::Value:
        case QAccessible::Description: return named ? label_.text().trimmed() : QString();
        default: return QAccessibleWidget::text(kind);
        }
    }

    QStringList actionNames() const override
    {
        return label_.Acts() ? QStringList{pressAction(), setFocusAction()} : QStringList();
    }

    void doAction(const QString& action) override
    {
        if (action == pressAction() && label_.Acts()) {
            RunFor(label_, [this] { label_.Press(); });
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    Label& label_;
};

class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(Button& button) : QAccessibleWidget(&button, QAccessible::Button), button_(button) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && button_.accessibleName().isEmpty() ? button_.text().simplified()
                                                                               : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button_.Switched().has_value();
        state.checked = state.pressed = button_.Switched().value_or(false);
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList others = QAccessibleWidget::actionNames();
        return button_.isEnabled() ? QStringList{pressAction()} + others : others;
    }

    void doAction(const QString& action) override
    {
        if (action == pressAction()) {
            RunFor(button_, [this] { Press(); });
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    /// The control that has the focus may refuse to let it go.
    void Press()
    {
        const bool takesFocus = button_.focusPolicy() != Qt::NoFocus;
        if (takesFocus) {
            button_.SetFocus();
            FocusController::Instance().Flush();
        }
        if (!takesFocus || FocusController::Instance().Current() == &button_) {
            button_.click();
        }
    }

    Button& button_;
};

class AccessibleSpin : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSpin(UpDown& spin) : QAccessibleWidget(&spin, QAccessible::SpinBox), spin_(spin) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Value: return QString::number(spin_.SpokenValue());
        // Without one of its own it would be the tool tip, which the name says already.
        case QAccessible::Description: return spin_.accessibleDescription();
        default: return QAccessibleWidget::text(kind);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = true;
        state.focused = spin_.isVisible() && spin_.Marked();
        return state;
    }

    QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }

    void doAction(const QString& action) override
    {
        if (action == increaseAction()) {
            StepBy(1);
        } else if (action == decreaseAction()) {
            StepBy(-1);
        }
    }

    QVariant currentValue() const override { return spin_.SpokenValue(); }
    QVariant minimumValue() const override { return spin_.Minimum(); }
    QVariant maximumValue() const override { return spin_.Maximum(); }
    QVariant minimumStepSize() const override { return spin_.Increment(); }

    void setCurrentValue(const QVariant& value) override
    {
        const int wanted = std::clamp(value.toInt(), spin_.Minimum(), spin_.Maximum());
        StepBy((wanted - spin_.SpokenValue()) / spin_.Increment());
    }

private:
    void StepBy(int steps)
    {
        RunFor(spin_, [this, steps] { steps > 0 ? spin_.StepUp(steps) : spin_.StepDown(-steps); });
    }

    UpDown& spin_;
};

/// A drawing, or the place of the focus when no control of a window has it.
class AccessiblePicture : public QAccessibleWidget
{
public:
    explicit AccessiblePicture(Picture& picture)
        : QAccessibleWidget(&picture, picture.objectName().isEmpty() ? QAccessible::Pane : QAccessible::Graphic)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name: return role() == QAccessible::Pane ? WindowName() : QAccessibleWidget::text(kind);
        case QAccessible::Description: return widget()->accessibleDescription();
        default: return QAccessibleWidget::text(kind);
        }
    }

private:
    /// The title as it is shown, the mark of what is not saved in place.
    QString WindowName() const
    {
        const QAccessibleInterface* window = QAccessible::queryAccessibleInterface(widget()->window());
        return window == nullptr ? QString() : window->text(QAccessible::Name).simplified();
    }
};

/// The icon of a message box: asked when it is read, since Qt 6.8 makes the interface of a box before it knows its
/// icon.
class AccessibleIcon : public QAccessibleWidget
{
public:
    AccessibleIcon(QLabel& icon, const QMessageBox& box) : QAccessibleWidget(&icon, QAccessible::StaticText), box_(box)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? Spoken() : QAccessibleWidget::text(kind);
    }

private:
    QString Spoken() const
    {
        switch (box_.icon()) {
        case QMessageBox::Critical: return QStringLiteral("Errore");
        case QMessageBox::Warning: return QStringLiteral("Attenzione");
        default: return QStringLiteral("Informazione");
        }
    }

    const QMessageBox& box_;
};

class AccessibleMessageBox : public QAccessibleWidget
{
public:
    explicit AccessibleMessageBox(QMessageBox& box) : QAccessibleWidget(&box, QAccessible::AlertMessage), box_(box) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? box_.text() : QAccessibleWidget::text(kind);
    }

private:
    QMessageBox& box_;
};

/// A window, or what holds others within it. What has nothing to say is left out.
class AccessibleGround : public QAccessibleWidget
{
public:
    explicit AccessibleGround(QWidget& ground)
        : QAccessibleWidget(&ground, ground.isWindow() ? QAccessible::Window : QAccessible::Client)
    {
    }

    QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind).simplified(); }

    int childCount() const override { return static_cast<int>(Children().size()); }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child == nullptr ? -1 : static_cast<int>(Children().indexOf(child->object()));
    }

    QAccessibleInterface* child(int index) const override
    {
        const QObjectList children = Children();
        return index < 0 || index >= children.size() ? nullptr : QAccessible::queryAccessibleInterface(children[index]);
    }

private:
    QObjectList Children() const
    {
        QObjectList children;
        for (QObject* child : widget()->children()) {
            const auto* inner = qobject_cast<QWidget*>(child);
            if (inner != nullptr && !inner->isWindow() && !IsSilent(*inner)) {
                children << child;
            }
        }
        return children;
    }
};

/// The most derived class comes first; null leaves it to the next one.
QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    if (auto* label = qobject_cast<Label*>(object)) {
        return new AccessibleLabel(*label);
    }
    if (auto* button = qobject_cast<Button*>(object)) {
        return new AccessibleButton(*button);
    }
    if (auto* spin = qobject_cast<UpDown*>(object)) {
        return new AccessibleSpin(*spin);
    }
    if (auto* picture = qobject_cast<Picture*>(object)) {
        return new AccessiblePicture(*picture);
    }
    if (auto* chart = qobject_cast<Chart*>(object)) {
        return new QAccessibleWidget(chart, QAccessible::Chart);
    }
    if (auto* box = qobject_cast<QMessageBox*>(object)) {
        return new AccessibleMessageBox(*box);
    }
    if (auto* box = qobject_cast<QMessageBox*>(object->parent());
        box != nullptr && object->objectName() == QLatin1String("qt_msgboxex_icon_label")) {
        return new AccessibleIcon(*qobject_cast<QLabel*>(object), *box);
    }
    return nullptr;
}

/// A widget of no class that Qt knows, or that it knows no role for: a window would get the role of a filler.
QAccessibleInterface* MakeAccessibleGround(const QString& className, QObject* object)
{
    if (className == QLatin1String("QSplitterHandle") || className == QLatin1String("QSizeGrip")) {
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Separator);
    }
    auto* ground = className == QLatin1String("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
    return ground == nullptr ? nullptr : new AccessibleGround(*ground);
}

/// A factory is called within functions of Qt that are not exception-safe: when memory runs out a widget has no
/// interface.
template <QAccessible::InterfaceFactory Make>
QAccessibleInterface* OrNone(const QString& className, QObject* object)
{
    try {
        return Make(className, object);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

void InstallAccessibility()
{
    QAccessible::installFactory(OrNone<MakeAccessibleGround>);
    QAccessible::installFactory(OrNone<MakeAccessible>);
}

} // namespace zelvia
