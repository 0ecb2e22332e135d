#include "interface/JeuPoker.h"

void JeuPoker::Deal_Click(int) {}
void JeuPoker::Form_KeyDown(int, int) {}
void JeuPoker::Form_Click() {}
