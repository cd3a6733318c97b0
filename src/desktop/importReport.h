#pragma once

class InstrumentDocument;
class QWidget;

/// Shows what an instrument's import brought in and what it left out, and waits to be closed.
void showImportReport(QWidget& parent, const InstrumentDocument& document);
