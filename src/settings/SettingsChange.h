#pragma once

#include <functional>

// Every settings change the management server tracks ends here. The settings backends sit below the
// agent, so they cannot call it themselves: start-up subscribes the agent's report, tests subscribe
// a counter.
namespace SettingsChange {

using Reporter = std::function<void()>;

void setReporter(Reporter reporter);
// Tells the subscriber (if any) that a tracked setting changed.
void report();

} // namespace SettingsChange
