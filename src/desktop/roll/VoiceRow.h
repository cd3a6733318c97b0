#pragma once

#include "audio/Program.h"
#include "sequencer/Voices.h"

#include <QObject>

#include <optional>
#include <span>
#include <vector>

class QAction;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QMenu;
class QSpinBox;
class QToolButton;

namespace velmora {

/// The controls of one voice, in two rows of a grid that owns them, so that they fit into a narrow
/// panel. The buttons have a context menu, because the space bar plays after a click.
class VoiceRow : public QObject {
    Q_OBJECT

public:
    /// `channel` is 0…15.
    VoiceRow(std::size_t channel, QGridLayout& grid);

    /// Shows a voice. `isChosen` tells whether it receives what is recorded.
    void showVoice(const Voice& voice, bool isChosen);

    /// Offers the programs of an instrument; none if it has one sound only. Call `showVoice`
    /// afterwards.
    void showPrograms(std::span<const Program> programs);

    void setVisible(bool isVisible);

signals:
    /// The user has chosen the voice, or asked for its notes by a double click.
    void chosen();
    void notesWanted();

    void renamed(const QString& name);
    void presetChosen(const std::optional<PartSound::Preset>& preset);
    void volumeMoved(int volume);
    void muted(bool isMuted);
    void soloed(bool isSolo);
    void locked(bool isLocked);

private:
    void makeMenu();
    bool eventFilter(QObject* watched, QEvent* event) override;
    void nameControls(const QString& voice);

    std::size_t channel_;
    QToolButton* number_;
    QLineEdit* name_;
    QComboBox* program_;
    QSpinBox* volume_;
    QToolButton *mute_, *solo_, *lock_;
    QMenu* menu_; ///< The context menu.
    QAction *notes_, *muting_, *soloing_, *locking_;
    std::vector<std::optional<PartSound::Preset>> presets_; ///< By their places in the list.
};

} // namespace velmora
