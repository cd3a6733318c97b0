#pragma once

#include <QMainWindow>

#include <functional>
#include <vector>

class QActionGroup;
class QComboBox;
class QFormLayout;
class QSpinBox;
class QStackedWidget;

namespace velmora {

class AppDelegate;
class Commands;
class HelpButton;

/// Edits the preferences in the panes "General", "Colors", "MIDI", "Sound" and "Shortcuts".
/// Each change is stored immediately.
class PreferencesWindow : public QMainWindow {
    Q_OBJECT

public:
    enum class Pane { General, Colors, Midi, Sound, Shortcuts };

    PreferencesWindow(AppDelegate& application, Commands& commands);

    /// Brings the window to the front with a pane.
    void presentPane(Pane pane);

signals:
    /// A preference has changed that affects the size or the look of the views, or how MIDI devices
    /// are played.
    void changed();

    /// The user has chosen another General MIDI bank.
    void bankChanged();

protected:
    bool event(QEvent* event) override;

private:
    QWidget* makeGeneralPane();
    QWidget* makeColorsPane();
    QWidget* makeMidiPane(AppDelegate& application);
    void addPane(const QString& name, const char* iconName, const char* guideSection,
                 QWidget* pane);
    void addNumber(QFormLayout& form, const QString& label, const char* key, QSpinBox* box,
                   const QString& help);
    QLayout* makeBankRow();
    QComboBox* makeStartBox();
    void chooseBank();
    void setBank(const QString& path);

    /// Shows the current preferences.
    void read() const;

    QActionGroup* paneActions_;
    QStackedWidget* panes_;
    HelpButton* help_;                           ///< About the current pane.
    std::vector<std::function<void()>> readers_; ///< Each one shows a preference in its widget.
};

} // namespace velmora
