// What one address lookup found.
#pragma once

#include <QString>

struct GlobalIpResult {
    QString ip; // the address that passed the check, or empty
    QString er; // the transport error's description, or empty when the service answered
};
