#pragma once

#include <QString>

#include <cstddef>

class QWidget;

namespace velmora {

class InstrumentDocument;

/// Returns a clause such as "2 files or samples were left out", without a full stop.
QString leftOutText(std::size_t count);

/// Returns a clause such as "2 stops were not loaded", without a full stop.
QString notLoadedText(std::size_t count);

/// Shows what was imported with an instrument and what was left out. Returns when the user closes
/// the report.
void showImportReport(QWidget& parent, const InstrumentDocument& document);

} // namespace velmora
