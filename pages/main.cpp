// osdmenu-pages: checks, measures and shows a folder of menu pages.
#include "pages/command/commands.h"

int main(int argc, char** argv) { return pages::run(argc, argv); }
