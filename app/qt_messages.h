#pragma once
// The program's own Qt messages (warnings of plugins and widgets) go to the
// standard error the program was started with. An engine run inside the
// process redirects descriptor 2 into the log pane's pipe for its duration;
// without this, those messages would be shown as if the engine had written
// them. Call once at start, before any engine run.
void routeQtMessagesToOriginalStderr();
