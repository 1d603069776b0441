// SPDX-FileCopyrightText: 2026 The Zelvia authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text.h"

#include <functional>
#include <vector>

namespace zelvia
{

class Control;
class frmMain;
class Label;

/// A numeric field of the page: a value label whose click shows controls beside it, and hides them again when the one
/// that holds the focus loses it.
class GruppoSpin
{
public:
    /// A label whose click opens the group, or closes it when it is open.
    struct Valore {
        Label* label;
        Control* prova; ///< Visible when the group counts as open.
        Text titolo;    ///< The name that the click reports under.
        Text apertura;  ///< The name of the opening routine.
    };

    struct Dati {
        std::vector<Valore> valori;
        Label* didascalia; ///< A click on it closes the group.
        Text titoloDidascalia;
        std::vector<Control*> controlli; ///< In the order in which they appear.
        Control* fuoco;                  ///< The one that takes the focus.
        std::function<void()> aperto;    ///< What else opening does, once the focus is given.
        std::function<void()> chiuso;    ///< What closing does, once the controls are hidden.
    };

    GruppoSpin(frmMain& page, Dati dati);
    GruppoSpin(const GruppoSpin&) = delete;
    GruppoSpin& operator=(const GruppoSpin&) = delete;

    void Mostra(bool visible);

private:
    void Apri(const Text& apertura);
    void Chiudi();
    void ConnectKeys();

    frmMain& page_;
    Dati dati_;
};

} // namespace zelvia
