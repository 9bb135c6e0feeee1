// The request line and the headers of one HTTP/1.x request, as far as the metrics server reads them.
#pragma once

#include <QByteArray>

#include <optional>

struct HttpRequestHead {
    QByteArray method;
    QByteArray path; // without the query
    QByteArray accept;
};

// The head from the bytes received so far: none while it is incomplete (no blank line yet);
// a head with an empty method when it is malformed.
std::optional<HttpRequestHead> parseRequestHead(const QByteArray& received);
