#pragma once

#include "sequencer/Voices.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class QCheckBox;
class QGridLayout;

namespace velmora {

class AppDelegate;
class SequenceDocument;
class VoiceRow;

/// The voices of the current piece, one in each row: its number in its colour, its name, what it
/// plays and how loud, and whether it is muted, solo or locked. The row that is pressed in receives
/// what is recorded and drawn.
class VoicesPanel : public QWidget {
    Q_OBJECT

public:
    /// The application must outlive the panel.
    explicit VoicesPanel(AppDelegate& application);
    ~VoicesPanel() override;

    /// Shows the voices of a document; null for none.
    void setDocument(SequenceDocument* document);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addRow(std::size_t channel);
    void showAll();
    void showPrograms();

    /// Changes one voice: with an entry in the undo history if there is a text for it.
    void change(std::size_t channel, const std::function<void(Voice&)>& change,
                const QString& text = {});

    AppDelegate& application_;
    SequenceDocument* document_ = nullptr;
    QCheckBox* ownSounds_;
    QGridLayout* grid_;
    std::array<std::unique_ptr<VoiceRow>, midi::kChannels> rows_;
};

} // namespace velmora
