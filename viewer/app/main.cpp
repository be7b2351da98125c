#include <viewer/app/Program.h>
#include <viewer/window/WindowMain.h>

int main(int argc, char** argv) { return oxviewer::RunProgram(argc, argv, oxviewer::RunWindow); }
