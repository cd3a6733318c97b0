#pragma once

#include "sequencer/TapTempo.h"

#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace velmora {

class Commands;
class SequenceDocument;

/// The commands for tempos, signatures and markers, which act at the position.
class TimeActions : public QObject {
    Q_OBJECT

public:
    explicit TimeActions(Commands& commands);
    ~TimeActions() override;

    /// Makes a piece the current one, or none if it is null. It must be replaced before it is
    /// destroyed. `parent` is where dialogs open.
    void setDocument(SequenceDocument* document, QWidget* parent);

    QAction* const tap;

    void addTo(QMenu& piece) const;

private:
    void tapTempo();

    SequenceDocument* document_ = nullptr;
    QWidget* parent_ = nullptr;
    const std::unique_ptr<QMenu> menu_;
    TapTempo taps_;
};

} // namespace velmora
