// The blinking of the alert line.
#include "interface/JeuPoker.h"
#include "services/platform.h"

// Seven times: the text goes out (black on black) for 40 ms, then comes back in a darker
// yellow for 150 ms, yielding after each wait. The line's first yellow is not restored.
// Automatic mode is never interrupted by it.
void JeuPoker::ClignoteAlertes() {
  if (AutoPlay->BevelWidth() == 0) return;
  for (int i = 1; i <= 7; ++i) {
    SSAlertes->SetForeColor(0);
    Sys().Sleep(40);
    Sys().DoEvents();
    SSAlertes->SetForeColor(0x00C0C0);
    Sys().Sleep(150);
    Sys().DoEvents();
  }
}
