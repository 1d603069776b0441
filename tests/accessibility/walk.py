#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Walks every window of the program as a screen reader does, prints all faults and fails if there is one.

The program shows 19 April 2026 of the sample year, a day with a race."""

import subprocess
import sys

import rules
from bus import Bus, NeverTrue, read

PAGE = "Zelvia"

TOOLS = "Strumenti di Zelvia"
YEARS = "Tutti gli anni"

# The pages of the tools, and a button that each has.
PAGES = (
    ("Anni passati", "Apri"),
    ("Controlla e ripara", "Esegui"),
    ("Giornale", "Esegui"),
    ("Copie", "Fai una copia adesso"),
    ("Due computer", "Scegli"),
    ("Dall'orologio", "Scrivi nel diario"),
    ("Esporta", "Scegli"),
    ("Il libro dell'anno", "Scegli"),
    ("Anno nuovo", "Esegui"),
)

# Kinds of figures over all years, with all the boxes that there are.
KINDS = ("Mesi", "Curva e obiettivo", "Andatura")

# What is written on the page on that day.
VALUES = {
    ("push button", "Data"): "domenica  19  aprile  2026",
    ("push button", "Percorso"): "Percorso di gara",
    ("push button", "Tipo"): "Gara",
    ("push button", "Km"): "16,093",
    ("push button", "Ora Inizio"): "9:00:00",
    ("push button", "Ora Fine"): "10:22:02",
    ("push button", "Corridori"): "655",
    ("push button", "Peso"): "0",
    ("push button", "Ripetizioni, quante volte"): "0",
    ("push button", "Tempi Km, tempo"): "00:00:00",
    ("push button", "Nota, riga 1"): "Dieci Miglia della Libertà",
    ("label", "Tempo impiegato"): "1:22:02",
    ("label", "Media al chilometro"): "5:05",
    ("label", "Giorno dell'anno"): "109",
    ("label", "Gare dell'anno"): "4",
    ("label", "Nome del diario"): "prova",
    ("label", "Gara, località"): "Castel del Rio",
    ("label", "Gara, risultato"): "294",
    ("label", "Gara, categoria"): "MM45",
}

LISTS = ("Lunghezza", "Andatura", "Terreno", "Tipo", "Stagione", "Meteo", "Temperatura", "Percorso")

# A value, a part of it, and what is written once that part has been stepped up. The weight starts from the last one.
STEPS = (
    ("Peso", "Peso, chilogrammi", None),
    ("Corridori", "Corridori", "656"),
    ("Km", "Km, chilometri", "17,093"),
    ("Ripetizioni, quante volte", "Ripetizioni, volte", "1"),
    ("Ripetizioni, metri di ognuna", "Ripetizioni, metri", "100"),
    ("Ripetizioni, tempo di ognuna", "Ripetizioni, secondi", "0:01"),
    ("Ora Inizio", "Ora Inizio, minuti", "9:01:00"),
    ("Ora Fine", "Ora Fine, secondi", "10:22:03"),
)

# What is taken away from a control in the control experiment, and what a walk then says of it.
SPOILT = {
    "role": ("unknown", "no role"),
    "name": ("", "no name"),
    "value": (None, "no value"),
}


def key(*names):
    subprocess.run(["xdotool", "key", *names], check=True)


def shows(window, role, name):
    return any(node.role == role and node.name.startswith(name) for node in window.within())


class Walk:
    def __init__(self, title, role, names):
        """In the window of that title the controls of these names can take the focus, so that events come."""
        self.bus = Bus()
        self.last = self.bus.window(title)
        self.found = []
        controls = [self.last.find(role, name) for name in names]
        self.bus.listen(lambda: [control.take_focus() for control in controls])

    def note(self, where, fault):
        self.found.append(fault)
        print(f"{where}: {fault}", flush=True)

    def expect(self, where, got, wanted):
        if got != wanted:
            self.note(where, f"{got!r} instead of {wanted!r}")

    def look(self, title, box=False, own=True):
        """A window, whose faults are noted."""
        window = self.last = self.bus.window(title, box)
        for fault in rules.faults(window, own):
            self.note(title, fault)
        return window

    def change(self, title, where, act, until, own=True):
        """Acts on a window, waits until a reading of it is as wanted, and notes faults and what no event has told."""
        before = self.bus.window(title)
        self.bus.events.clear()
        act(before)

        def reached():
            window = self.bus.window(title)
            return window if until(window) else None

        after = self.bus.wait(where, reached)
        try:
            self.bus.wait("the events", lambda: not rules.untold(before, after, self.bus.events), patience=5)
        except NeverTrue:
            for fault in rules.untold(before, after, self.bus.events):
                self.note(where, fault)
        for fault in rules.faults(after, own):
            self.note(where, fault)
        self.last = after
        return after

    def press(self, title, where, button, until):
        return self.change(title, where, lambda window: window.find("push button", button).act(), until)

    def tab_to(self, title, role, name):
        """Presses Tab until the control has the focus."""

        def press(window):
            control = window.find(role, name)
            self.bus.wait(f"the focus of {name}", lambda: control.now("focused") or key("Tab"))

        self.change(title, f"Tab to {name}", press, lambda window: window.find(role, name).has("focused"))

    def menu(self, name):
        """Chooses an entry of the menu bar."""
        bar = read(self.bus.window(PAGE).find("menu bar", "Menu").accessible, hidden=True)
        next(entry for entry in bar.within() if entry.role == "menu item" and entry.name == name).act()

    def leave(self, title, button="Esci", box=False):
        """Closes the window that was last looked at."""
        self.last.find("push button", button).act()
        self.bus.gone(title, box)

    # The page.

    def page(self):
        page = self.look(PAGE)
        for (role, name), value in VALUES.items():
            self.expect(f"page, {name}", page.find(role, name).description, value)
        bar = read(page.find("menu bar", "Menu").accessible, hidden=True)
        for entry in bar.within():
            for fault in rules.control_faults(entry):
                self.note("menus", f"{entry}: {fault}")

    def lists(self):
        for name in LISTS:
            page = self.press(
                PAGE,
                f"opening {name}",
                name,
                lambda window: window.find("list", name) and window.find("text", name).has("focused"),
            )
            entries = page.find("list", name).count
            # Behind their number the entry that is marked.
            told = page.find("text", name).description.split("; ")
            self.expect(f"entries of {name}", told[0], rules.count_of(entries))

    def spins(self):
        for name, part, value in STEPS:
            page = self.press(PAGE, f"opening {name}", name, lambda window: window.find("spin button", part))
            before = page.find("spin button", part).value
            page = self.change(
                PAGE,
                f"stepping {part}",
                lambda window: window.find("spin button", part).act("Increase"),
                lambda window: window.find("spin button", part).value > before,
            )
            if value is not None:
                self.expect(f"stepping {part}", page.find("push button", name).description, value)
        # An open group reports the part that the keys work on.
        self.expect("the first part", page.find("spin button", "Ora Fine, ore").has("focused"), True)
        self.change(
            PAGE,
            "choosing the next part",
            lambda window: key("Right"),
            lambda window: window.find("spin button", "Ora Fine, minuti").has("focused"),
        )

    def ranking(self):
        """Leaving the end of the run shows the times of the route."""
        page = self.change(
            PAGE,
            "the ranking",
            lambda window: key("Escape"),
            lambda window: window.find("list", "Lista Tempi").children,
        )
        times = page.find("list", "Lista Tempi")
        # A reader would follow the focus to a row of a list that has not got it.
        focused = {path for path, kind in self.bus.events if kind.startswith("object:state-changed:focused")}
        self.expect("rows with the focus", [row.name for row in times.children if row.path in focused], [])
        self.expect(
            "the columns of the ranking",
            times.description,
            f"{rules.count_of(times.count)}; colonne: posizione, tempo, media, data",
        )
        own = [row.name.split(", ") for row in times.children if row.name.endswith(", data 19/04/2026")]
        self.expect("the run in the ranking", [parts[1] for parts in own], ["tempo 1:21:03"])
        self.change(
            PAGE,
            "closing the ranking",
            lambda window: key("Escape"),
            lambda window: not shows(window, "list", "Lista Tempi"),
        )

    def splits(self):
        def enter(window):
            window.find("spin button", "Tempi Km, chilometro").set_value(5)
            window.find("spin button", "Tempi Km, minuti").set_value(25)

        written = ("push button", "Tempi Km, tempo")
        page = self.press(PAGE, "opening the splits", "Tempi Km", lambda window: window.find("list", "Tempi parziali"))
        entries = page.find("list", "Tempi parziali").count
        self.change(PAGE, "a split", enter, lambda window: window.find(*written).description == "00:25:00")
        page = self.press(
            PAGE,
            "entering a split",
            "Immetti nella lista",
            lambda window: window.find("list", "Tempi parziali").count == entries + 1,
        )
        self.expect("a split", page.find("list", "Tempi parziali").children[-1].name, "chilometro 05, tempo 00:25:00")

    def notes(self):
        name = "Nota, riga 3"
        text = "Vento contrario"
        self.press(PAGE, "opening a note", name, lambda window: window.find("text", name).has("focused"))
        self.change(
            PAGE,
            "writing a note",
            lambda window: window.find("text", name).set_text(text),
            lambda window: window.find("text", name).text == text,
        )
        self.change(
            PAGE,
            "the next note",
            lambda window: key("Return"),
            lambda window: window.find("push button", name).description == text
            and window.find("text", "Nota, riga 4").has("focused"),
        )

    def date(self):
        self.press(PAGE, "opening the date", "Data", lambda window: window.find("spin button", "Giorno").has("focused"))
        for part, date in (("Giorno", "lunedì  20  aprile  2026"), ("Mese", "mercoledì  20  maggio  2026")):
            page = self.change(
                PAGE,
                f"the next {part}",
                lambda window: window.find("spin button", part).act("Increase"),
                lambda window: window.find("push button", "Data").description == date,
            )
            self.expect(f"the date at {part}", page.find("spin button", part).description, date)
        numbers = [page.find("spin button", part).value for part in ("Giorno", "Mese")]
        self.expect("the date's numbers", numbers, [20, 5])

    def boxes(self):
        self.menu("Azzera Giorno")
        box = self.look(PAGE, box=True, own=False)
        self.expect("message box", [node.name for node in box.within() if node.role == "label"][-1:], [box.description])
        self.leave(PAGE, "Annulla", box=True)

    def dialogs(self):
        for entry in ("Apri", "Salva con nome"):
            self.menu(entry)
            self.look(entry, own=False)
            self.leave(entry, "Annulla")

    def route(self):
        title = "Percorso :"
        self.press(PAGE, "opening the route", "Percorso", lambda window: window.find("text", "Percorso").has("focused"))
        self.bus.window(PAGE).find("text", "Percorso").set_text("Giro nuovo")
        key("Return")
        self.look(title)
        self.write(title, "Chilometri, riga 2", "7")
        self.change(
            title,
            "the length of the route",
            lambda window: key("Tab"),
            lambda window: window.find("text", "Totale, chilometri").text == "7",
        )
        key("alt+F4")
        self.bus.gone(title)

    # The other windows.

    def write(self, title, box, text):
        def enter(window):
            control = window.find("text", box)
            control.take_focus()
            self.bus.wait("the focus", lambda: control.now("focused"))
            control.set_text(text)

        self.change(title, f"writing in {box}", enter, lambda window: window.find("text", box).text == text)

    def plan(self):
        tables, title = "Lista Tabelle Allenamenti", "Tabella allenamento"
        self.menu("Allenamenti")
        self.look(tables)
        self.change(
            tables,
            "choosing a table",
            lambda window: window.find("list item", "Base 10 km").act("Toggle"),
            lambda window: window.find("list item", "Base 10 km").has("selected"),
        )
        self.bus.window(tables).find("push button", "O K").act()
        editor = self.look(title)
        self.expect("a disabled button", editor.find("push button", "Disattiva").has("sensitive"), False)
        self.write(title, "Minuti, riga 3", "59")
        self.press(title, "accepting", "OK", lambda window: window.find("push button", "Attiva").has("sensitive"))
        self.leave(title)
        self.look(tables)
        self.leave(tables)

    def races(self):
        title = "Calendario Gare"
        self.menu("Gare")
        calendar = self.look(title)
        self.expect("a race", calendar.find("text", "Nome, riga 4").text, "Dieci Miglia della Libertà")
        calendar = self.change(
            title,
            "the next page",
            lambda window: window.find("spin button", "Pagina delle gare").act("Increase"),
            lambda window: window.find("text", "Nome, riga 24"),
        )
        self.expect("the page", calendar.find("spin button", "Pagina delle gare").description, "Pagina 2 di 5")
        self.leave(title)

    def search(self):
        title = "Ricerche Statistiche"
        self.menu("Medie")
        self.look(title)
        self.press(title, "a condition", "Tipo", lambda window: window.find("push button", "Tipo").has("pressed"))
        self.tab_to(title, "list", "Valori")
        self.change(
            title,
            "choosing a value",
            lambda window: window.find("list item", "Gara").act("Toggle"),
            lambda window: window.find("list item", "Gara").has("selected"),
        )
        self.change(
            title,
            "taking a value",
            lambda window: key("Return"),
            lambda window: window.find("label", "Condizione: Tipo").description == "Gara",
        )
        period = ("push button", "Periodo")
        self.press(title, "the period", "Periodo", lambda window: window.find(*period).has("pressed"))
        self.press(title, "no period", "Periodo", lambda window: not window.find(*period).has("pressed"))
        window = self.press(title, "the search", "Avvia", lambda window: window.find("list", "Corse trovate").children)
        runs = window.find("list", "Corse trovate")
        self.expect("the columns", runs.description, "4 voci; colonne: Km, tempo, media per Km, data")
        self.expect("the totals", window.find("label", "Totali, Corse").description, "4")
        self.expect("a run", runs.children[0].name, "Km 10,0, tempo 0:49:30, media per Km 4:56, data 08/02/2026")
        window.find("push button", "Grafico").act()
        self.chart("Velocità Media per Km")
        self.look(title)
        self.leave(title)

    def chart(self, name):
        title = "Grafici"
        self.look(title)
        self.tab_to(title, "chart", name)
        self.leave(title)

    def statistics(self):
        title = "Statistiche"
        self.menu("Tipo")
        window = self.look(title)
        values = window.find("list", "Valori e frequenze")
        self.expect("the columns", values.description.split("; ")[1:], ["colonne: descrizione, frequenza"])
        races = [row.name for row in values.children if "Gara" in row.name]
        self.expect("a value", races, ["descrizione Gara, frequenza 4"])
        window.find("list item", "descrizione Gara").act("Toggle")
        tree = ("tree", "Tempi del valore")
        times = self.press(title, "the times", "Tempi", lambda window: window.find(*tree).children).find(*tree).children
        self.expect(
            "the columns of the times",
            [cell.name for cell in times if cell.role == "table column header"],
            ["classifica", "tempo", "media", "data"],
        )
        self.expect("a time", [cell.name for cell in times if cell.name.startswith("tempo 0:31")], ["tempo 0:31:34"])
        window.find("push button", "Grafico").act()
        self.chart("Tipo")
        self.look(title)
        self.leave(title)

    def guide(self):
        title = "Guida di Zelvia"
        self.menu("Sommario")
        self.look(title, own=False)
        self.menu("Cerca argomento")
        self.bus.wait("the search", lambda: self.bus.window(title).find("text", "Parole da cercare").has("focused"))
        self.bus.window(title).find("text", "Parole da cercare").set_text("peso")
        self.bus.wait("what is found", lambda: self.bus.window(title).find("list", "Argomenti trovati").children)
        self.look(title, own=False)
        key("Escape")
        self.bus.gone(title)

    def about(self):
        title = "Informazioni su Zelvia"
        self.menu("Informazioni su")
        self.look(title)
        self.leave(title, "O.K.")

    # The window of the tools, a program of its own.

    def tools(self):
        for title, control in PAGES:
            self.change(
                TOOLS,
                f"the page {title}",
                lambda window: key("ctrl+Next"),
                lambda window: window.find("label", title) and window.find("push button", control),
                own=False,
            )
        self.look(TOOLS, own=False)

    def years(self):
        key("ctrl+Next")
        self.bus.wait("the page of the years", lambda: self.bus.window(TOOLS).find("push button", YEARS))
        self.bus.window(TOOLS).find("push button", YEARS).act()
        self.bus.wait("the figure", lambda: self.bus.window(YEARS).find("chart", "Chilometri"))
        self.look(YEARS, own=False)
        for kind in KINDS:
            self.bus.window(YEARS).find("list", "Grafici").take_focus()
            self.bus.wait(kind, lambda: self.bus.window(YEARS).find("list item", kind).now("selected") or key("Down"))
            self.look(YEARS, own=False)
        self.leave(YEARS)

    def end(self):
        """The program ends by its menu, without a question."""
        self.menu("Esci")
        self.bus.ended()

    def control(self):
        """Whatever is taken away from what the page tells is missed, and each event too."""
        page = self.bus.window(PAGE)
        for what, (nothing, fault) in SPOILT.items():
            node = page.find("spin button", "Giorno")
            kept = getattr(node, what)
            setattr(node, what, nothing)
            self.expect(f"without its {what}", [found.endswith(f": {fault}") for found in rules.faults(page)], [True])
            setattr(node, what, kept)
        self.expect("as it is", list(rules.faults(page)), [])
        other = self.bus.window(PAGE)
        changed = other.find("push button", "Data")
        changed.description += "!"
        told = {(changed.path, "object:property-change:accessible-description")}
        self.expect("a change that is told", rules.untold(page, other, told), [])
        self.expect("a change that is not", len(rules.untold(page, other, set())), 1)


# What changes the day comes last: with a changed diary a dialog is preceded by a question.
STOPS = """page dialogs plan races search statistics guide about
           lists spins ranking splits notes route date control boxes end""".split()


TOOLS_STOPS = ["tools", "years"]


def main():
    stops = sys.argv[1:] or STOPS
    if stops[0] in TOOLS_STOPS:
        walk = Walk(TOOLS, "push button", ("Mostra", "Cartella"))
    else:
        walk = Walk(PAGE, "push button", ("Data", "Percorso"))
    for stop in stops:
        try:
            getattr(walk, stop)()
        except (NeverTrue, StopIteration, ValueError) as fault:
            walk.note(stop, f"{type(fault).__name__} {fault}")
    print(f"{len(walk.found)} faults")
    return 1 if walk.found else 0


if __name__ == "__main__":
    sys.exit(main())
