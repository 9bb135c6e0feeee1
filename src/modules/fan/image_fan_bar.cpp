// The Fan picture writes its figure in the derived format of the settings.
#include "modules/fan/image_fan_bar.h"

QString fanSpeedText(std::optional<qint64> rpm, const QString& format)
{
    if (!rpm)
        return QStringLiteral("---");
    // Only the one integer conversion the settings derive is honoured; any other text is kept
    // as it stands, so a damaged format can never read past its argument.
    QString text = format.isEmpty() ? QStringLiteral("%04d") : format;
    const qsizetype at = text.indexOf(QLatin1String("%04d"));
    const QString figure = QStringLiteral("%1").arg(*rpm, 4, 10, QLatin1Char('0'));
    if (at >= 0)
        return text.replace(at, 4, figure);
    return figure;
}

QString ImageFanBar::valueText(std::optional<qint64> rpm, bool bare) const
{
    // The piled format is bare already; bare text is only asked for piled text.
    Q_UNUSED(bare)
    return fanSpeedText(rpm, mySettings.textFormat);
}
