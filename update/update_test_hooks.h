#pragma once

class QPushButton;

// End-to-end tests of an installed program need someone to press the buttons.
// Only builds configured with ZUVO_UPDATE_TEST_HOOKS=ON contain this; in
// every other build it does nothing.
#ifdef ZUVO_UPDATE_TEST_HOOKS
void installUpdateTestHooks(QPushButton* checkButton);
#else
inline void installUpdateTestHooks(QPushButton*) {}
#endif
