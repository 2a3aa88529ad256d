// qbformul: look into, convert and upgrade the stored applications of the form library.
#include "befehle.h"

int main(int argc, char** argv) { return qbtool::hauptprogramm(argc, argv); }
