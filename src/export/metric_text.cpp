// Writes metric families in the two text formats Prometheus scrapes.
#include "export/metric_text.h"

#include <QList>

#include <charconv>
#include <cmath>

namespace {

void appendValue(QByteArray& out, double value)
{
    if (std::isnan(value)) {
        out += "NaN";
    } else if (std::isinf(value)) {
        out += value > 0 ? "+Inf" : "-Inf";
    } else {
        char buffer[32];
        // The shortest text that reads back as the same number; whole numbers stay whole.
        const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
        out.append(buffer, static_cast<qsizetype>(result.ptr - buffer));
    }
}

void appendEscaped(QByteArray& out, const QByteArray& text, bool quotes)
{
    for (const char c : text) {
        if (c == '\\')
            out += "\\\\";
        else if (c == '\n')
            out += "\\n";
        else if (c == '"' && quotes)
            out += "\\\"";
        else
            out += c;
    }
}

// Appended piece by piece: a scrape writes a thousand of these, and temporaries would double it.
void appendPoint(QByteArray& out, const QByteArray& name, const MetricPoint& point)
{
    out += name;
    if (!point.labels.empty()) {
        out += '{';
        for (std::size_t i = 0; i < point.labels.size(); ++i) {
            if (i > 0)
                out += ',';
            out += point.labels[i].first;
            out += "=\"";
            appendEscaped(out, point.labels[i].second, true);
            out += '"';
        }
        out += '}';
    }
    out += ' ';
    appendValue(out, point.value);
    out += '\n';
}

QByteArray typeName(MetricType type)
{
    return type == MetricType::Counter ? QByteArrayLiteral("counter") : QByteArrayLiteral("gauge");
}

QByteArray sampleName(const MetricFamily& family)
{
    return family.type == MetricType::Counter ? family.name + "_total" : family.name;
}

// One media range of an Accept header: its type and its weight.
struct MediaRange {
    QByteArray type;
    double q = 1;
};

QList<MediaRange> mediaRanges(const QByteArray& accept)
{
    QList<MediaRange> ranges;
    for (const QByteArray& item : accept.split(',')) {
        const QList<QByteArray> parts = item.split(';');
        MediaRange range{parts.first().trimmed().toLower()};
        for (qsizetype i = 1; i < parts.size(); ++i) {
            const QByteArray parameter = parts[i].trimmed();
            if (parameter.startsWith("q=")) {
                bool ok = false;
                const double q = parameter.mid(2).toDouble(&ok);
                range.q = ok ? q : 0;
            }
        }
        if (!range.type.isEmpty())
            ranges.append(range);
    }
    return ranges;
}

} // namespace

namespace MetricText {

bool wantsOpenMetrics(const QByteArray& accept)
{
    double openMetrics = 0;
    double plain = 0;
    for (const MediaRange& range : mediaRanges(accept)) {
        if (range.type == "application/openmetrics-text")
            openMetrics = std::max(openMetrics, range.q);
        else if (range.type == "text/plain" || range.type == "text/*" || range.type == "*/*")
            plain = std::max(plain, range.q);
    }
    return openMetrics > 0 && openMetrics > plain;
}

QByteArray plainText(const MetricFamilies& families)
{
    QByteArray out;
    out.reserve(static_cast<qsizetype>(families.size()) * 4096);
    for (const MetricFamily& family : families) {
        const QByteArray name = sampleName(family);
        out += "# HELP " + name + ' ';
        appendEscaped(out, family.help, false);
        out += '\n';
        out += "# TYPE " + name + ' ' + typeName(family.type) + '\n';
        for (const MetricPoint& point : family.points)
            appendPoint(out, name, point);
    }
    return out;
}

QByteArray openMetrics(const MetricFamilies& families)
{
    QByteArray out;
    out.reserve(static_cast<qsizetype>(families.size()) * 4096);
    for (const MetricFamily& family : families) {
        out += "# TYPE " + family.name + ' ' + typeName(family.type) + '\n';
        if (!family.unit.isEmpty())
            out += "# UNIT " + family.name + ' ' + family.unit + '\n';
        out += "# HELP " + family.name + ' ';
        appendEscaped(out, family.help, true);
        out += '\n';
        const QByteArray name = sampleName(family);
        for (const MetricPoint& point : family.points)
            appendPoint(out, name, point);
    }
    out += "# EOF\n";
    return out;
}

} // namespace MetricText
