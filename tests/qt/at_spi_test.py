#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Goes through the program as a blind user's reader does: login, main form, a screen with a grid.

usage: at_spi_test.py FOLDER_OF_THE_PROGRAMS        (under on_bus.sh)

All is done through the accessibility bus: fields are found by their names, filled, buttons pressed.
"""
import shutil
import subprocess
import sys
import tempfile
import time
import unicodedata
import warnings
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
warnings.simplefilter("ignore", DeprecationWarning)
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 60  # seconds
MOST_CHILDREN = 200
FIELDS = {"text", "password text", "combo box", "table", "list", "entry"}
FOCUSABLE = FIELDS | {"push button", "check box", "radio button"}


def fail(why):
    raise SystemExit(f"at_spi_test.py: {why}")


def wait_for(what, look):
    """What look() finds, as soon as it finds something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = look()
        except GLib.Error:  # gone while it was looked at
            found = None
        if found:
            return found
        time.sleep(0.1)
    return fail(f"there is no {what}")


def below(node, depth=0):
    """The node and all below it that is in view; of a table only the beginning."""
    yield node
    if depth < 30:
        for place in range(min(node.get_child_count(), MOST_CHILDREN)):
            child = node.get_child_at_index(place)
            if child is not None:
                yield from below(child, depth + 1)


def is_seen(node):
    states = node.get_state_set()
    return all(states.contains(state) for state in
               (Atspi.StateType.SHOWING, Atspi.StateType.VISIBLE, Atspi.StateType.ENABLED))


class Program:
    def __init__(self, folder):
        self.process = subprocess.Popen([folder / "ZRVClient"], cwd=folder)

    def application(self):
        desktop = Atspi.get_desktop(0)
        for place in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(place)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def windows(self):
        if self.process.poll() is not None:
            fail(f"the program has ended with {self.process.returncode}")
        application = self.application()
        if application is None:
            return []
        children = [application.get_child_at_index(place) for place in range(application.get_child_count())]
        return [child for child in children if child is not None and is_seen(child)]

    def find(self, role, name):
        return wait_for(f"{role} {name}", lambda: next(
            (node for window in self.windows() for node in below(window)
             if node.get_role_name() == role and node.get_name() == name and is_seen(node)), None))

    def fill(self, role, name, text):
        field = self.find(role, name)
        Atspi.EditableText.set_text_contents(field.get_editable_text_iface(), text)
        return field

    def press(self, name):
        action = self.find("push button", name).get_action_iface()
        names = [Atspi.Action.get_action_name(action, place) for place in range(Atspi.Action.get_n_actions(action))]
        Atspi.Action.do_action(action, names.index("Press"))

    def check_names(self):
        """Of all that is in view: whatever takes keys has a name, and no name holds what is only for the eye."""
        count = 0
        for window in self.windows():
            for node in below(window):
                role, name = node.get_role_name(), node.get_name()
                bad = [sign for sign in name if sign == "\u0640" or unicodedata.category(sign) == "Cc"
                       or (unicodedata.category(sign) == "Cf" and sign != "\u200c")]
                if bad and role not in ("table cell", "menu item"):  # these are told as they are shown
                    fail(f"the name of a {role} holds {bad}: {name}")
                focusable = node.get_state_set().contains(Atspi.StateType.FOCUSABLE)
                if role in FOCUSABLE and focusable and is_seen(node) and not name:
                    fail(f"a {role} of {window.get_name()} has no name")
                count += 1
        return count


def check_grid(program, rows):
    table = wait_for("grid of the payees", lambda: next(
        (node for window in program.windows() for node in below(window) if node.get_role_name() == "table"), None))
    grid = table.get_table_iface()
    if not table.get_name():
        fail("the grid has no name")
    if Atspi.Table.get_n_rows(grid) != rows:
        fail(f"the grid has {Atspi.Table.get_n_rows(grid)} rows, not {rows}")
    heads = [Atspi.Table.get_column_description(grid, column) for column in range(Atspi.Table.get_n_columns(grid))]
    if not all(head.strip() for head in heads):
        fail(f"a column has no head: {heads}")
    for row in range(rows):
        cells = [Atspi.Table.get_accessible_at(grid, row, column).get_name() for column in range(len(heads))]
        if sum(bool(cell) for cell in cells) < 3:
            fail(f"row {row} tells next to nothing: {cells}")


def tour(programs, folder):
    payees = 12
    subprocess.run([programs / "zrvstore", "sample", folder, "--payees", str(payees)], check=True,
                   stdout=subprocess.DEVNULL)
    shutil.copy2(programs / "ZRVClient", folder)
    program = Program(folder)
    try:
        program.fill("text", "نام كاربري", "ADMIN")
        program.check_names()
        program.fill("password text", "كلمه عبور", "ADMIN")
        program.press("تاييد")
        program.press("خير")  # the question of a version not seen before
        program.find("push button", "ليست حقوق")
        seen = program.check_names()
        program.press("تعريف دريافت کننده حقوق")
        check_grid(program, payees)
        seen += program.check_names()
        program.windows()  # it has not ended
        print(f"at_spi_test.py: {seen} things seen")
    finally:
        program.process.kill()


def main():
    Atspi.init()
    with tempfile.TemporaryDirectory() as folder:
        tour(Path(sys.argv[1]), Path(folder))


if __name__ == "__main__":
    main()
