#!/usr/bin/python3 -B
"""Presses the tab of the preview by the assistive bus, and waits for the display to show the gradient there; then moves its
last stop, mostly faster than the page loads, and waits for what comes of it."""
import glob
import os
import subprocess
import time

from outside import Atspi, GdkPixbuf, eventually, find

BODY_MARGIN = 8  # of the page
DESKTOP = bytes([255, 0, 255])


def screen():
    subprocess.run(["weston-screenshooter"], check=True, stdout=subprocess.DEVNULL)
    (file,) = glob.glob("*.png")
    picture = GdkPixbuf.Pixbuf.new_from_file(file)
    os.remove(file)
    return picture


def shows_gradient(box, end):
    """From black to white, which is reached at that share of the width."""
    picture = screen()
    pixels, row, size = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()

    def at(x, y):
        return pixels[y * row + x * size :][:3]

    width, height = picture.get_width(), picture.get_height()
    left = next((x for x in range(width) if at(x, height // 2) != DESKTOP), width)
    top = next((y for y in range(height) if at(width // 2, y) != DESKTOP), height)
    if left + box.x + box.width > width or top + box.y + box.height > height:
        return False  # no window
    for share in (0.1, 0.25, 0.5, 0.75, 0.9):
        x = int(left + box.x + BODY_MARGIN + share * (box.width - 2 * BODY_MARGIN))
        if any(abs(level - 255 * min(share / end, 1)) > 4 for level in at(x, top + box.y + 100)):
            return False
    return at(left + box.x + box.width // 2, top + box.y + 270) == bytes([255] * 3)  # below it, the page


def tab_can_be_pressed():
    tab = find("Web Preview")
    return tab and tab.do_action(0)


def preview_shows_gradient(end=1.0):
    view = find("Web preview")
    return view and shows_gradient(view.get_extents(Atspi.CoordType.WINDOW), end)


eventually(tab_can_be_pressed)
eventually(preview_shows_gradient)
position = find("Position stepper")
for pause in (0, 5, 10, 15, 20, 25, 30, 40):  # milliseconds
    end = 0.5 + pause / 100
    position.set_current_value(1.0)
    time.sleep(pause / 1000)
    position.set_current_value(end)
    eventually(lambda: preview_shows_gradient(end))
