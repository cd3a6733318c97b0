#pragma once

#include "import/ImportOptions.h"

#include <functional>

class QMenu;

namespace velmora {

class InstrumentDocument;

/// Adds to a menu what the user can choose about the file of an instrument: which of its
/// instruments, how it is laid out and read, and what saves memory. `reopen` is called with the
/// options to read the file with again.
void addImportChoices(QMenu& menu, const InstrumentDocument& document,
                      const std::function<void(const ImportOptions&)>& reopen);

} // namespace velmora
