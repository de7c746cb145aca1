"""The accessibility bus, used as a screen reader uses it."""

import contextlib
import time

import pyatspi
from gi.repository import Gio, GLib

ENTER, DOWN = 0xFF0D, 0xFF54

heard = []  # (event, role, name, text) of everything that changed


def turn_on():
    """What a screen reader does at its start; only then do programs speak to the bus."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    for name in ("IsEnabled", "ScreenReaderEnabled"):
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", name, GLib.Variant("b", True))),
                      None, Gio.DBusCallFlags.NONE, -1)

    def note(event):
        with contextlib.suppress(GLib.Error):  # it is gone again
            heard.append((str(event.type), event.source.getRoleName(), event.source.name,
                          str(event.any_data)))

    pyatspi.Registry.registerEventListener(note, "object:property-change", "object:text-changed",
                                           "object:state-changed:focused")


def let_pass(seconds):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        time.sleep(0.01)


def wait_for(what, find):
    end = time.monotonic() + 30
    while time.monotonic() < end:
        with contextlib.suppress(GLib.Error):  # a window that is just built or taken down
            found = find()
            if found:
                return found
        let_pass(0.1)
    raise AssertionError(f"{what} is not there; the windows are {names()}, heard: {heard[-20:]}")


def windows():
    return [window for program in pyatspi.Registry.getDesktop(0)
            if program is not None and program.name == "Benevix" for window in program]


def names():
    return [f"{window.getRoleName()} {window.name!r}" for window in windows()]


def shown(item):
    """The item and all in it that is shown; not the cells of a table."""
    if not item.getState().contains(pyatspi.STATE_SHOWING):
        return
    yield item
    if item.getRole() != pyatspi.ROLE_TABLE:
        for child in item:
            if child is not None:
                yield from shown(child)


def check_names():
    """Whatever is shown, other than texts and what only holds others, has a name and a role."""
    for window in windows():
        for item in shown(window):
            role = item.getRoleName()
            if role in ("label", "filler", "frame", "split pane"):
                continue
            # The grips of splitters have neither.
            assert (role == "unknown") == (not item.name), f"{role} {item.name!r} in {window.name!r}"


def find(role, name, window=None):
    return wait_for(f"{role} {name!r}", lambda: next(
        (item for top in windows() if window in (None, top.name) for item in shown(top)
         if item.getRoleName() == role and item.name == name), None))


def press(role, name, window=None):
    """By its first action, once it has one: what is disabled has none."""
    item = find(role, name, window)
    wait_for(f"an action of {role} {name!r}", lambda: item.queryAction().nActions > 0)
    item.queryAction().doAction(0)
    let_pass(0.5)


def focus(role, name):
    item = find(role, name)
    item.queryComponent().grabFocus()
    wait_for(f"the focus at {name!r}", lambda: item.getState().contains(pyatspi.STATE_FOCUSED))
    let_pass(0.5)


def key(code):
    pyatspi.Registry.generateKeyboardEvent(code, None, pyatspi.KEY_SYM)
    let_pass(0.3)


def control(letter):
    left_control = 37  # the keycode
    pyatspi.Registry.generateKeyboardEvent(left_control, None, pyatspi.KEY_PRESS)
    key(ord(letter))
    pyatspi.Registry.generateKeyboardEvent(left_control, None, pyatspi.KEY_RELEASE)
    let_pass(0.3)


def write(role, name, text):
    focus(role, name)
    pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)
    let_pass(0.5)


@contextlib.contextmanager
def hearing(event, role, name=None, text=None):
    """What is done meanwhile must be heard: an event at something of the role, with its new name or
    text where one is given."""
    heard.clear()
    yield
    wait_for(f"{event} of {role} {name or ''!r} {text or ''!r}", lambda: any(
        what.startswith(event) and kind == role and name in (None, called) and text in (None, new)
        for what, kind, called, new in list(heard)))
