// Keeping the user's dynamic DNS records pointed at the machine's global address.
#pragma once

#include "net/ddns_check_options.h"

#include <QString>

#include <functional>

class Notifier;
class SettingsStore;

namespace GeneralFunctions {

// Told once, on the calling thread, how a check ended, in words the preferences can show (never
// with a password).
using DdnsFinished = std::function<void(const QString& outcome)>;

// When newAddress differs from the address the list was last carried out for (or forced removed
// that record), stores and saves it first, so a failed update waits for the next change or a
// forced run, then walks the list on a worker thread, telling the user through notifier.
// store and notifier must outlive the walk.
void checkGlobalIpAddressForDdns(const QString& newAddress, bool forced, SettingsStore& store, Notifier& notifier,
                                 const DdnsCheckOptions& options = {}, DdnsFinished finished = {});

// The whole check: with a non-empty list, looks up the global address without blocking this
// thread and, when one is found, compares and walks as above.
void runDdnsCheck(SettingsStore& store, Notifier& notifier, bool forced, const DdnsCheckOptions& options = {},
                  DdnsFinished finished = {});

// The user's "update now": forgets the recorded address, so every line is carried out again.
void forcedExecutionDdns(SettingsStore& store, Notifier& notifier, const DdnsCheckOptions& options = {},
                         DdnsFinished finished = {});

} // namespace GeneralFunctions
