// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "toolkit/PageTurn.h"

#include "toolkit/Picture.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

#include <utility>

namespace zelvia
{
namespace
{

bool moves = false;

/// The old page on its way out, a picture that says nothing to screen readers.
class Leaf : public Picture
{
public:
    Leaf(QWidget& window, QImage page)
        : Picture(&window, QStringLiteral("leaf"),
                  [this, page = std::move(page)](QPainter& painter, const QRectF& /*area*/) {
                      painter.setOpacity(fade_.currentValue().toDouble());
                      painter.drawImage(0, 0, page);
                  })
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(window.rect());
        fade_.setStartValue(1.0);
        fade_.setEndValue(0.0);
        fade_.setDuration(PageTurn::kMilliseconds);
        connect(&fade_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
        connect(&fade_, &QVariantAnimation::finished, this, &QObject::deleteLater);
        fade_.start();
        show();
    }

private:
    QVariantAnimation fade_;
};

/// What is on the screen of a window: copied from its memory, which takes no painting.
QImage Shown(const QWidget& window)
{
    QBackingStore* store = window.backingStore();
    const auto* image = store != nullptr ? dynamic_cast<const QImage*>(store->paintDevice()) : nullptr;
    return image != nullptr && image->deviceIndependentSize().toSize() == window.size() ? image->copy() : QImage();
}

QVariant Unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

/// Asks the desktop for one of its settings, without waiting and without starting anything. `forbids` tells from its
/// value whether nothing is to move.
void Ask(const char* group, const char* key, bool (*forbids)(const QVariant&))
{
    const QString portal = QStringLiteral("org.freedesktop.portal.");
    QDBusMessage question = QDBusMessage::createMethodCall(portal + QStringLiteral("Desktop"),
                                                           QStringLiteral("/org/freedesktop/portal/desktop"),
                                                           portal + QStringLiteral("Settings"), QStringLiteral("Read"));
    question.setAutoStartService(false);
    question.setArguments({QString::fromLatin1(group), QString::fromLatin1(key)});
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), QCoreApplication::instance());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, forbids] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError() && forbids(Unwrapped(QVariant::fromValue(reply.value())))) {
            moves = false;
        }
        answer->deleteLater();
    });
}

/// Once, at the first turn, so that the start need not wait for it.
void AskTheDesktop()
{
    static bool asked = false;
    if (std::exchange(asked, true)) {
        return;
    }
    Ask("org.gnome.desktop.interface", "enable-animations", [](const QVariant& value) { return !value.toBool(); });
    Ask("org.kde.kdeglobals.KDE", "AnimationDurationFactor",
        [](const QVariant& value) { return value.toString() == QLatin1String("0"); });
}

} // namespace

void PageTurn::Allow(bool allowed)
{
    moves = allowed;
}

void PageTurn::Begin(QWidget& window)
{
    if (!window.isVisible()) {
        return;
    }
    constexpr int quick = 300;
    const bool inARow = last_.isValid() && last_.elapsed() < quick;
    last_.start();
    delete leaf_;
    if (!moves || inARow || window.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &window) == 0) {
        return;
    }
    AskTheDesktop();
    if (QImage page = Shown(window); !page.isNull()) {
        leaf_ = new Leaf(window, std::move(page));
    }
}

} // namespace zelvia
