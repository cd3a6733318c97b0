#pragma once

#include "app/Player.h"
#include "import/InstrumentDocument.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace velmora {

/// Loads the rest of instruments that can be played already, a little at a time on the main thread.
class InstrumentLoader : public QObject {
    Q_OBJECT

public:
    explicit InstrumentLoader(Player& player);

    /// Loads the rest of an instrument, if there is any. It must be removed before the document is
    /// unloaded or destroyed, or else the document must outlive this object.
    void add(InstrumentDocument& document);

    /// Loads no more of an instrument, without a word in its report.
    void remove(const InstrumentDocument& document);

    /// Ends the loading of all instruments. What is loaded can still be played.
    void stop();

    bool isLoading() const { return !loadings_.empty(); }

signals:
    /// So many per cent of the instrument with that title are loaded; 100 when the loading ends.
    void progressed(const QString& title, int percent);

    /// Other stops of an instrument can be played, or will not be loaded.
    void stopsChanged();

    /// The document's report says what was not loaded.
    void finished(const velmora::InstrumentDocument& document);

private:
    struct Loading {
        InstrumentDocument* document;
        int percent = -1;
    };

    void advance();
    void advance(InstrumentDocument& document);
    void showProgress(Loading& loading);
    void finish(const std::vector<const InstrumentDocument*>& done);

    Player& player_;
    std::vector<Loading> loadings_;
    QTimer timer_;
    bool haveStopsChanged_ = false; ///< Since the last signal.
};

} // namespace velmora
