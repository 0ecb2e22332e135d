// Marks along the way to the first frame: the wall-clock time and resident memory of each,
// printed by the start-up report (TALVERO_FIRST_FRAME_REPORT) to show where the time goes.
#pragma once

#include <QString>

// Records a mark named `name` ("form", "cards:back", ...). Cheap enough to leave on.
void StartupStage(const char* name);
// "name:ms/cpu/kB," for every mark so far: ms of the wall clock modulo 1000 s, ms of the
// marking thread's processor time, resident kB.
QString StartupStages();
// The resident memory of the process, in kB (0 where /proc cannot be read).
long ResidentKb();
