// The program the user starts, from the hand-over's variable or this program's own path.
#include "toolkit/program_path.h"

#include <QCoreApplication>

namespace Tarvel {

QString programPath()
{
    const QString handedOver = qEnvironmentVariable(kProgramPathVariable);
    return handedOver.isEmpty() ? QCoreApplication::applicationFilePath() : handedOver;
}

} // namespace Tarvel
