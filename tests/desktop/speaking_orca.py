#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Runs Orca, the screen reader, as a Chinese reader has it who also wants to be told places; what it
would speak goes to a file, an utterance a line. The variable SPOKEN names the file. Another, which
IDLE names, tells how often Orca has looked for work until now, and how often of late in vain.

It takes the place of Orca's own command, which refuses to start beside an Orca of the same user.
Orca asks the module that `speechServerFactory` names for its speech server: this one.
"""

import os
import sys
from pathlib import Path

from gi.repository import GLib
from orca import event_manager, orca, speechserver

LOOK_INTERVAL_MS = 50

SETTINGS = {
    "speechServerFactory": Path(__file__).stem,
    "enableKeyEcho": False,
    "enableBraille": False,
    "enableSound": False,
    "enablePositionSpeaking": True,
}


class SpeechServer(speechserver.SpeechServer):
    _instance = None

    @staticmethod
    def getFactoryName():
        return SETTINGS["speechServerFactory"]

    @classmethod
    def getSpeechServers(cls):
        return [cls.getSpeechServer()]

    @classmethod
    def getSpeechServer(cls, info=None):
        cls._instance = cls._instance or cls()
        return cls._instance

    def __init__(self):
        super().__init__()
        self._file = open(os.environ["SPOKEN"], "a", buffering=1, encoding="utf-8")

    def getInfo(self):
        return [self.getFactoryName(), self.getFactoryName()]

    def getVoiceFamilies(self):
        return []

    def speak(self, text=None, acss=None, interrupt=True):
        if text:
            self._file.write(" / ".join(text.splitlines()) + "\n")

    def speakCharacter(self, character, acss=None):
        self.speak(character)

    def speakKeyEvent(self, event, acss=None):
        self.speak(event.getKeyName())

    def sayAll(self, utteranceIterator, progressCallback):
        for context, _ in utteranceIterator:
            self.speak(context.utterance)


class IdleWatch:
    def __init__(self):
        self._file = os.open(os.environ["IDLE"], os.O_WRONLY | os.O_CREAT)
        self._looks = 0
        self._in_vain = 0
        self._tell()

    def look(self) -> bool:
        self._looks += 1
        waiting = event_manager.getManager()._eventQueue.qsize()
        self._in_vain = 0 if waiting else self._in_vain + 1
        self._tell()
        return GLib.SOURCE_CONTINUE

    def _tell(self) -> None:
        os.pwrite(self._file, f"{self._looks:08} {self._in_vain:08}".encode(), 0)


if __name__ == "__main__":
    orca.getSettingsManager().activate(None, SETTINGS)
    GLib.timeout_add(LOOK_INTERVAL_MS, IdleWatch().look)
    sys.exit(orca.main())
