// Entry point of tarvel: reports, renders and the text view run here, the desktop's commands elsewhere.
#include "app/desktop_handover.h"
#include "app/program_entry.h"

int main(int argc, char** argv)
{
    // The desktop program carries the widget toolkit; a monitor without a display never loads it.
    return programMain(argc, argv, {&handOverMonitor, &handOverRender});
}
