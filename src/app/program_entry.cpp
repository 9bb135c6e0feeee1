// Parses the command line and runs the chosen command.
#include "app/program_entry.h"

#include "app/argument_encoding.h"
#include "app/commands.h"
#include "app/front_ends/front_end_choice.h"
#include "app/open_file_limit.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

int programMain(int argc, char** argv, const DesktopCommands& desktop)
{
    if (const auto bad = firstNonUtf8Argument(argc, argv)) {
        // Qt keeps paths as UTF-8 text: such a name would silently become another one.
        std::fprintf(stderr, "tarvel: argument %d is not valid UTF-8; give paths in UTF-8\nTry 'tarvel --help'.\n",
                     *bad);
        return 2;
    }
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const OptionsResult parsed = parseAppOptions(arguments, qEnvironmentVariable("TARVEL_ROOT"));
    if (!parsed.options) {
        std::fputs(parsed.message.toLocal8Bit().constData(), parsed.exitCode == 0 ? stdout : stderr);
        return parsed.exitCode;
    }
    QCoreApplication::setApplicationVersion(QStringLiteral(TARVEL_VERSION));
    raiseOpenFileLimit();
    switch (parsed.options->command) {
    case AppOptions::Command::Snapshot:
        return runSnapshot(*parsed.options, argc, argv);
    case AppOptions::Command::Render:
        if (parsed.options->panels)
            return desktop.runPanelRender(*parsed.options, argc, argv);
        return runRender(*parsed.options, argc, argv);
    case AppOptions::Command::GlobalAddress:
        return runGlobalAddress(*parsed.options, argc, argv);
    case AppOptions::Command::Serve:
        return runServe(*parsed.options, argc, argv);
    case AppOptions::Command::History:
        return runHistory(*parsed.options, argc, argv);
    case AppOptions::Command::Run:
        break;
    }
    if (!hasDisplay())
        return runTextView(*parsed.options, argc, argv);
    return desktop.runMonitor(*parsed.options, argc, argv);
}
