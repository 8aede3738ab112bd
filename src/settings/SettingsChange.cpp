#include "SettingsChange.h"

#include <utility>

namespace {

SettingsChange::Reporter& reporter()
{
    static SettingsChange::Reporter instance;
    return instance;
}

} // namespace

void SettingsChange::setReporter(Reporter newReporter)
{
    reporter() = std::move(newReporter);
}

void SettingsChange::report()
{
    if (reporter())
        reporter()();
}
