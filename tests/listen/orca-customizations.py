# Read by Orca as it starts. Notes whether Orca has anything left to do: in the file that TAVRUNE_LISTEN_BEAT names,
# how many looks there have been, and at which of them it was last busy: with an event, or with words that it has
# sent and that have not been spoken. Words that were taken back before they were spoken go to
# TAVRUNE_LISTEN_SPOKEN.
import html
import os
import re

import orca.event_manager
import orca.settings
import speechd
from gi.repository import GLib

orca.settings.enableKeyEcho = False

beat = os.environ["TAVRUNE_LISTEN_BEAT"]
spoken = os.environ["TAVRUNE_LISTEN_SPOKEN"]
looks = 0
last_busy = 0
was_busy = False
waiting = {}


def busy(*_):
    global was_busy
    was_busy = True


def drop(text):
    plain = html.unescape(re.sub("<[^>]*>", "", text)).strip()
    with open(spoken, "a", encoding="utf-8") as file:
        file.write(f"DROP {plain}\n")


send = speechd.SSIPClient.speak


def speak(self, text, callback=None, event_types=None):
    number = object()
    waiting[number] = (text, False)

    def told(kind, **more):
        if kind == speechd.CallbackType.BEGIN:
            waiting[number] = (text, True)
        elif kind in (speechd.CallbackType.END, speechd.CallbackType.CANCEL):
            _, begun = waiting.pop(number, (text, True))
            if not begun and kind == speechd.CallbackType.CANCEL:
                drop(text)
        if callback:
            callback(kind, **more)

    busy()
    return send(self, text, told, event_types if callback else None)


speechd.SSIPClient.speak = speak
enqueue = orca.event_manager.EventManager._enqueue


def counted(self, event):
    busy()
    return enqueue(self, event)


orca.event_manager.EventManager._enqueue = counted


def look():
    global looks, last_busy, was_busy
    looks += 1
    queue = orca.event_manager.getManager()._eventQueue
    if was_busy or waiting or not queue.empty():
        last_busy = looks
        was_busy = False
    with open(beat + ".new", "w", encoding="ascii") as file:
        file.write(f"{looks} {last_busy}\n")
    os.replace(beat + ".new", beat)
    return True


GLib.timeout_add(25, look)
