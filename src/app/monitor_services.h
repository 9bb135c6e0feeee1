// What every running monitor adds to its controller, with or without a display.
#pragma once

class AppDelegate;
class HistoryService;

namespace MonitorServices {

// Every cycle's figures also go to the long history; its writer runs on a thread of its own.
void feedHistory(AppDelegate& delegate, HistoryService& history);
// The dynamic DNS run reaches outside services, so only the real monitor carries it out.
void carryOutDdns(AppDelegate& delegate);

} // namespace MonitorServices
