// Measuring the start: marks along the way to the first frame (the wall-clock time and
// resident memory of each) and the report of the first frame that scripts/measure-startup
// reads. Shared by the game and the bare window it is compared with. Marks may come from any
// thread (the card worker makes some); the report runs on the GUI thread.
#pragma once

#include <QString>

class QObject;

// Records a mark named `name` ("form", "cards:back", ...). Cheap enough to leave on.
void StartupStage(const char* name);
// "name:ms/cpu/kB," for every mark so far: ms of the wall clock modulo 1000 s, ms of the
// marking thread's processor time, resident kB.
QString StartupStages();
// The resident memory of the process, in kB (0 where /proc cannot be read).
long ResidentKb();
// The calling thread's processor time, in seconds.
double ThreadCpuSeconds();

// With TALVERO_FIRST_FRAME_REPORT set, prints the wall-clock time of `window`'s first painted
// frame, the resident memory and the marks so far (if any), then ends the program. Set to
// "settled", it also waits until the work that follows the first frame is done and prints
// the resident memory then. Without the variable it does nothing.
void ReportFirstFrame(QObject& window);
