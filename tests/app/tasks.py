#!/usr/bin/python3 -B
"""Makes a gradient of four stops, keeps, reverses, copies and exports it, and takes all of that back: by keys alone, or by
what the program offers on the assistive bus alone."""
import subprocess
import sys

from outside import Atspi, GdkPixbuf, eventually, find

STOPS = (("#1fd1f9", 0), ("#7b5cff", 0.25), ("#ff5f6d", 0.7), ("#b621fe", 1))
START = "background: linear-gradient(to right, #000000 0%, #ffffff 100%);"
REVERSED = "background: linear-gradient(to right, #b621fe 0%, #ff5f6d 30%, #7b5cff 75%, #1fd1f9 100%);"
PICTURE = "Picture.png"
WIDTH = 1000  # wide enough for the pixels beside a stop to have its very colour
DATABASE = "data/Tessaly/localDB.sqlite3"


def run(*command):
    return subprocess.check_output(command, text=True)


class Keyboard:
    """Keys wait in their window until the program takes them, so nothing but a new window is waited for."""

    KEYS = {"Add Stop in Between": "ctrl+i", "Reverse": "alt+g r", "Copy Standard Declaration": "ctrl+shift+c",
            "Export Picture...": "ctrl+e", "Add Preset": "alt+d", "Position": "alt+p", "Hex": "alt+x",
            "Width": "alt+w", "File name:": "alt+n"}
    focused = None
    selected = 2  # the last stop at the start

    def wait_for(self, title):
        def window():
            other = run("xdotool", "getwindowfocus").strip()
            return other != self.focused and run("xdotool", "getwindowname", other) == title + "\n" and other

        self.focused = eventually(window)

    def press(self, name, _menu=None):
        run("xdotool", "key", *self.KEYS[name].split())

    def select(self, stop):
        step = "Tab" if stop > self.selected else "shift+Tab"
        run("xdotool", "key", "alt+r", "shift+Tab", *[step] * abs(stop - self.selected))  # the canvas lies before Red
        self.selected = stop

    def fill(self, field, text, _button=None):
        self.press(field)
        run("xdotool", "type", "--args", "1", text, "key", "Return")

    def undo_all(self):
        run("xdotool", "key", *["ctrl+z"] * 20)


class AssistiveTools:
    def wait_for(self, name, interface="Accessible"):
        return eventually(lambda: find(name, interface))

    def press(self, name, menu=None):
        if menu:
            self.press(menu)
        self.wait_for(name, "Action").do_action(0)

    def select(self, stop):
        self.press(f"Stop {stop}")

    def fill(self, field, text, button=None):
        self.wait_for(field, "EditableText").set_text_contents(text)
        if button:
            self.press(button)

    def undo_all(self):
        while self.wait_for("Undo*", "Action").get_state_set().contains(Atspi.StateType.ENABLED):
            self.press("Undo*", "Edit")


def copy(text):
    hand.press("Copy Standard Declaration", "Edit")
    eventually(lambda: run("xclip", "-out", "-selection", "clipboard") == text)


def wait_for_presets(count):
    eventually(lambda: run("sqlite3", "-readonly", DATABASE, "select count(*) from MainTable") == f"{count}\n")


def picture_shows_stops():
    picture = GdkPixbuf.Pixbuf.new_from_file(PICTURE)
    pixels, size = picture.get_pixels(), picture.get_n_channels()
    shown = ["#" + pixels[min(round((1 - place) * WIDTH), WIDTH - 1) * size :][:3].hex() for _, place in STOPS]
    return picture.get_width() == WIDTH and shown == [color for color, _ in STOPS]


hand = {"keyboard": Keyboard, "assistive_tools": AssistiveTools}[sys.argv[1]]()
hand.wait_for("Tessaly")
for stop, (color, place) in enumerate(STOPS, 1):
    hand.select(stop)
    if 0 < place < 1:
        hand.fill("Position", str(place))
    hand.fill("Hex", color)
    if stop < 3:
        hand.press("Add Stop in Between", "Gradient")
hand.press("Add Preset")
wait_for_presets(1)
hand.press("Reverse", "Gradient")
copy(REVERSED)
hand.press("Export Picture...", "File")
hand.wait_for("Export Picture")
hand.fill("Width", str(WIDTH), "Export...")
hand.wait_for("Export Picture")
hand.fill("File name:", PICTURE, "Save")
eventually(picture_shows_stops)
hand.wait_for("Tessaly")
hand.undo_all()
wait_for_presets(0)
copy(START)
