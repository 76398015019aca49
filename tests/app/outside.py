"""What tests need to look at the program from outside."""
import subprocess
import sys
import time
from fnmatch import fnmatchcase

import gi

gi.require_version("Atspi", "2.0")
gi.require_version("GdkPixbuf", "2.0")
from gi.repository import Atspi, GdkPixbuf, GLib


def descendants(item):
    for i in range(item.get_child_count()):
        child = item.get_child_at_index(i)
        if child is not None:
            yield child
            yield from descendants(child)


def find(name, interface="Accessible"):
    """The first item of that name, or pattern, and that interface on the assistive bus; None while there is none."""
    items = (item for item in descendants(Atspi.get_desktop(0)) if fnmatchcase(item.get_name(), name))
    return next((item for item in items if interface in item.get_interfaces()), None)


def eventually(condition):
    end = time.monotonic() + 30
    while time.monotonic() < end:
        try:
            if result := condition():
                return result
        except (GLib.Error, subprocess.CalledProcessError):  # the program is still making what was asked for
            pass
        time.sleep(0.05)
    sys.exit(f"never came true: {condition.__qualname__}")
