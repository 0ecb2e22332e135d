#include "interface/JeuPoker.h"

void JeuPoker::ClignoteAlertes() {}
