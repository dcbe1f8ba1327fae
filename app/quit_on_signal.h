#pragma once
// Lets SIGTERM, SIGINT and SIGHUP end the event loop normally, so a program
// closed from a terminal or by its session manager still runs its shut-down
// order and removes its temporary engine-log folder. Does nothing on Windows.
void quitEventLoopOnTerminationSignals();
