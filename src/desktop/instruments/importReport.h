#pragma once

class QWidget;

namespace velmora {

class InstrumentDocument;

/// Shows what an instrument's import brought in and what it left out, and waits to be closed.
void showImportReport(QWidget& parent, const InstrumentDocument& document);

} // namespace velmora
