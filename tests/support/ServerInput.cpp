// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ServerInput.h"

#include "support/ActiveWindow.h"
#include "support/XServer.h"

#include <QTest>

#include <X11/keysym.h>
#include <map>
#include <optional>
#include <vector>
#include <xcb/xtest.h>

namespace hand
{
namespace
{

/// What a key has to be struck with.
struct KeyStroke {
    xcb_keycode_t code = 0;
    bool shifted = false;
};

/// Which key carries which symbol, plain or with Shift.
std::map<xcb_keysym_t, KeyStroke> ReadKeyboard()
{
    std::map<xcb_keysym_t, KeyStroke> keys;
    const xcb_setup_t* setup = xcb_get_setup(Server());
    const int first = setup->min_keycode;
    const int count = setup->max_keycode - first + 1;
    const Reply<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        Server(),
        xcb_get_keyboard_mapping(Server(), static_cast<xcb_keycode_t>(first), static_cast<std::uint8_t>(count)),
        nullptr));
    if (mapping == nullptr) {
        return keys;
    }
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    constexpr int levels = 2;
    for (int level = 0; level < levels; ++level) {
        for (int i = 0; i < count; ++i) {
            const xcb_keysym_t symbol = symbols[i * mapping->keysyms_per_keycode + level];
            if (symbol != XCB_NO_SYMBOL) {
                keys.try_emplace(symbol, KeyStroke{static_cast<xcb_keycode_t>(first + i), level == 1});
            }
        }
    }
    return keys;
}

std::optional<KeyStroke> StrokeOf(xcb_keysym_t symbol)
{
    static const std::map<xcb_keysym_t, KeyStroke> keys = ReadKeyboard();
    const auto found = keys.find(symbol);
    return found != keys.end() ? std::optional(found->second) : std::nullopt;
}

/// The symbol of a key; a letter's is the small one.
xcb_keysym_t SymbolOf(Qt::Key key)
{
    static const std::map<Qt::Key, xcb_keysym_t> symbols = {
        {Qt::Key_Return, XK_Return},  {Qt::Key_Enter, XK_KP_Enter},
        {Qt::Key_Escape, XK_Escape},  {Qt::Key_Tab, XK_Tab},
        {Qt::Key_Backtab, XK_Tab},    {Qt::Key_Insert, XK_Insert},
        {Qt::Key_Delete, XK_Delete},  {Qt::Key_Backspace, XK_BackSpace},
        {Qt::Key_Left, XK_Left},      {Qt::Key_Right, XK_Right},
        {Qt::Key_Up, XK_Up},          {Qt::Key_Down, XK_Down},
        {Qt::Key_Home, XK_Home},      {Qt::Key_End, XK_End},
        {Qt::Key_PageUp, XK_Page_Up}, {Qt::Key_PageDown, XK_Page_Down},
        {Qt::Key_Menu, XK_Menu}};
    if (const auto found = symbols.find(key); found != symbols.end()) {
        return found->second;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return XK_F1 + static_cast<xcb_keysym_t>(key - Qt::Key_F1);
    }
    return QChar(static_cast<int>(key)).toLower().unicode();
}

void Fake(std::uint8_t type, std::uint8_t detail, unsigned delay = 0)
{
    xcb_test_fake_input(Server(), type, detail, delay, XCB_NONE, 0, 0, 0);
}

void StrikeHeld(const std::vector<xcb_keysym_t>& modifiers, xcb_keycode_t key)
{
    std::vector<xcb_keycode_t> codes;
    for (const xcb_keysym_t symbol : modifiers) {
        codes.push_back(StrokeOf(symbol).value_or(KeyStroke()).code);
    }
    codes.push_back(key);
    for (const xcb_keycode_t code : codes) {
        Fake(XCB_KEY_PRESS, code);
    }
    for (auto code = codes.rbegin(); code != codes.rend(); ++code) {
        Fake(XCB_KEY_RELEASE, *code);
    }
    xcb_flush(Server());
}

/// Where the server has a place of a window on its screen.
std::optional<QPoint> PlaceOnServer(const QWidget& window, QPoint position)
{
    const Reply<xcb_translate_coordinates_reply_t> place(xcb_translate_coordinates_reply(
        Server(),
        xcb_translate_coordinates(Server(), static_cast<xcb_window_t>(window.internalWinId()), RootWindow(),
                                  static_cast<std::int16_t>(position.x()), static_cast<std::int16_t>(position.y())),
        nullptr));
    return place != nullptr ? std::optional(QPoint(place->dst_x, place->dst_y)) : std::nullopt;
}

} // namespace

void MovePointer(const QWidget& window, QPoint position)
{
    // A window that was moved is there a moment later; until then a press would meet what is in its place.
    constexpr int patience = 1000;
    std::optional<QPoint> place;
    (void)Await(
        [&] {
            place = PlaceOnServer(window, position);
            return place == window.mapToGlobal(position);
        },
        patience);
    QVERIFY(place.has_value());
    xcb_test_fake_input(Server(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, RootWindow(),
                        static_cast<std::int16_t>(place->x()), static_cast<std::int16_t>(place->y()), 0);
    xcb_flush(Server());
}

void MoveButton(int number, bool down, unsigned delay)
{
    Fake(down ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(number), delay);
    xcb_flush(Server());
}

void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const std::pair<Qt::KeyboardModifier, xcb_keysym_t> names[] = {
        {Qt::ControlModifier, XK_Control_L}, {Qt::AltModifier, XK_Alt_L}, {Qt::ShiftModifier, XK_Shift_L}};
    std::vector<xcb_keysym_t> held;
    for (const auto& [modifier, symbol] : names) {
        if (modifiers.testFlag(modifier)) {
            held.push_back(symbol);
        }
    }
    const std::optional<KeyStroke> stroke = StrokeOf(SymbolOf(key));
    QVERIFY2(stroke.has_value(), qPrintable(QStringLiteral("no key for %1").arg(key)));
    StrikeHeld(held, stroke->code);
}

bool StrikeText(const QString& text)
{
    std::vector<KeyStroke> strokes;
    for (const QChar character : text) {
        const std::optional<KeyStroke> stroke = StrokeOf(character.unicode());
        if (!stroke) {
            return false;
        }
        strokes.push_back(*stroke);
    }
    for (const KeyStroke& stroke : strokes) {
        StrikeHeld(stroke.shifted ? std::vector<xcb_keysym_t>{XK_Shift_L} : std::vector<xcb_keysym_t>{}, stroke.code);
    }
    return true;
}

} // namespace hand
