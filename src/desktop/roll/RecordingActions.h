#pragma once

#include <QObject>

#include <memory>

class QAction;
class QMenu;

namespace velmora {

class Commands;
class SequenceDocument;

/// When the metronome clicks while it is switched on. The values are stored in the preferences.
enum class MetronomeUse { Always, WhileRecording, WhilePlaying };

/// The commands for recording: the metronome, the count-in, replacing a part, and the takes of a
/// loop.
class RecordingActions : public QObject {
    Q_OBJECT

public:
    explicit RecordingActions(Commands& commands);
    ~RecordingActions() override;

    /// Makes a piece the current one, or none if it is null. It must be replaced before it is
    /// destroyed.
    void setDocument(SequenceDocument* document);

    QAction *const metronome, *const punch;
    QAction *const fit, *const thin; ///< For the whole piece.

    /// How the metronome clicks, and the bars that are counted before a recording.
    QMenu& metronomeMenu() const { return *metronomeMenu_; }

    /// The takes to choose from; disabled if there are none.
    QMenu& takesMenu() const { return *takesMenu_; }

    void addTo(QMenu& piece) const;

signals:
    /// The user has chosen a volume for the metronome, from 0 to 1.
    void volumeChanged(float volume);

    /// There are takes to choose from now, or there are none any more.
    void takesChanged(bool areAny);

private:
    void makeMetronomeMenu();
    void addChoice(const char* preference, const QStringList& titles);
    void addVolume();
    void takeSettings();
    void thinControllers();
    void showOptions();
    void showTakes();

    SequenceDocument* document_ = nullptr;
    const std::unique_ptr<QMenu> metronomeMenu_, takesMenu_;
};

} // namespace velmora
