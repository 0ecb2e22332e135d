#include "interface/JeuPoker.h"

void JeuPoker::AfficheCapital() {}
void JeuPoker::AfficheGain() {}
void JeuPoker::AfficheGain5() {}
void JeuPoker::AfficheMise() {}
void JeuPoker::AfficheUnàDouze() {}
void JeuPoker::Plus_Click() {}
void JeuPoker::Moins_Click() {}
void JeuPoker::Plus_MouseMove(int, int, int, int) {}
void JeuPoker::Moins_MouseMove(int, int, int, int) {}
void JeuPoker::Pointeur10() {}
void JeuPoker::Pointeur12() {}
void JeuPoker::RegisterInterfaceVariables() {}
