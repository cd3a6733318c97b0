#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <string>

class QLabel;
class QProgressBar;

namespace velmora {

/// Shows the progress of an import and lets the user cancel it. It is modal: meanwhile the user can
/// only play. The import reports its steps to it, and each report processes pending events.
class ProgressWindow : public QDialog {
    Q_OBJECT

public:
    ProgressWindow();

    /// Opens the window for an import of `steps` steps.
    void startProgress(long steps);

    /// Advances by `steps` and shows `text`; 0 changes nothing. The last step closes the window.
    void updateProgress(unsigned steps, const std::string& text);

    /// Closes the window, whether or not all steps were done.
    void endProgress();

    QProgressBar* bar() const { return bar_; }
    QLabel* label() const { return label_; }

signals:
    /// The user wants the import to stop. The window stays open until it has.
    void cancelled();

private:
    void reject() override;

    QProgressBar* bar_;
    QLabel* label_;
    QElapsedTimer sinceEvents_; ///< Runs since events were last processed.
};

} // namespace velmora
