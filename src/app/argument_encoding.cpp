// Checks the command line's encoding before any argument becomes a QString.
#include "app/argument_encoding.h"

#include <QByteArrayView>
#include <QStringDecoder>

std::optional<int> firstNonUtf8Argument(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        // The decoder only learns of a bad sequence by decoding; the text itself is not needed.
        [[maybe_unused]] const QString text = decoder.decode(QByteArrayView(argv[i]));
        if (decoder.hasError())
            return i;
    }
    return std::nullopt;
}
