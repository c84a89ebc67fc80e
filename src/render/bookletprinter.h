// Prints a run of puzzles as a booklet for handing out: a page for each
// puzzle with its clues, then the answer keys (see core/play/booklet.h),
// on whatever paper the target prints on.
#pragma once

#include <QString>
#include <functional>

#include "core/play/booklet.h"
#include "render/rangeprinter.h"

namespace combwise {

// Puzzles first..last, stopping after `count`; puzzles that do not load
// are left out. `events` runs after each page.
RangeOutcome PrintBooklet(PrintTarget& target, int first, int last, int count, const PageLoader& load,
                          const QString& title = kBookletTitle, const std::function<void()>& events = {});

}  // namespace combwise
