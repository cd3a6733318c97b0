#pragma once

#include "import/ImportOptions.h"
#include "import/InstrumentFormat.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>

namespace velmora {

class AppDelegate;
class InstrumentDocument;
class ProgressWindow;

/// Reads the files of instruments and enters them in the application's list. While a file is read,
/// events are processed.
class InstrumentOpener : public QObject {
    Q_OBJECT

public:
    /// Both arguments must outlive the object.
    InstrumentOpener(AppDelegate& application, ProgressWindow& progress);

    // These return false if nothing has changed, because the reading failed or was cancelled.

    /// Opens a file as a further instrument, which becomes the current one.
    bool open(const QString& path, InstrumentFormat format);

    /// Reads the file of a listed instrument with other options, in the place of that one.
    bool reopen(std::size_t position, const ImportOptions& options);

    /// Makes a listed instrument the current one, reading it again if it was unloaded.
    bool select(std::size_t position);

signals:
    /// Reading has failed; `message` says why.
    void failed(const QString& message);

    /// There is something to know about what was read.
    void message(const QString& text);

private:
    std::unique_ptr<InstrumentDocument> read(const QString& path, InstrumentFormat format,
                                             const ImportOptions& options);
    void describe(const InstrumentDocument& document);

    AppDelegate& application_;
    ProgressWindow& progress_;
};

} // namespace velmora
