// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;
class QWidget;

namespace zelvia
{

/// Makes the toolkit's controls known to screen readers: role, name, value, state and actions. Nothing is created
/// before a reader asks.
void InstallAccessibility();

/// Gives a box Qt's button that empties it, with the name that it lacks.
void AddClearButton(QLineEdit& box);

/// Tells the readers that run, if any, the new value of a control.
void TellValue(QWidget& widget, int value);

/// The same for a control whose value is a text, read as its description.
void TellText(QWidget& widget);

/// Tells them that the title of a window has changed, which is the name of the place of its focus too.
void TellTitle(QWidget& window);

/// Tells them that a control is now the one that the keys work on, whichever has the focus.
void TellActive(QWidget& widget);

/// Tells them that a button has been switched.
void TellSwitched(QWidget& widget);

} // namespace zelvia
