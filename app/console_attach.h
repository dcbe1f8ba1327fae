#pragma once
// Gives a GUI-subsystem executable working standard streams. On Windows it
// attaches to the parent's console (or points the streams at NUL); elsewhere
// the streams are already what the caller gave us. Returns whether a console
// (a terminal, off Windows) is attached.
bool attachConsole();
