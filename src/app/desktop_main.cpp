// Entry point of the desktop program: the monitor in the tray or a bar window, and the renders.
#include "app/commands.h"
#include "app/program_entry.h"

int main(int argc, char** argv)
{
    return programMain(argc, argv, {&runMonitor, &runPanelRender});
}
