#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <string>

class QLabel;
class QProgressBar;

namespace velmora {

/// Shows the progress of an import and lets the user cancel it. It is modal: during the import, the
/// user can only play or cancel. The import calls it for each step; some of these calls process
/// pending events, so that the program stays responsive.
class ProgressWindow : public QDialog {
    Q_OBJECT

public:
    ProgressWindow();

    /// Opens the window for an import of `steps` steps.
    void startProgress(long steps);

    /// Advances by `steps` and shows `text`. Closes the window when the number of steps is
    /// reached exactly. 0 steps change nothing.
    void updateProgress(unsigned steps, const std::string& text);

    /// Closes the window, whether or not all steps were done.
    void endProgress();

signals:
    /// The user wants the import to stop. The window stays open until the import has stopped.
    void cancelled();

private:
    void reject() override;

    QProgressBar* bar_;
    QLabel* label_;
    QElapsedTimer sinceEvents_; ///< The time since events were last processed.
};

} // namespace velmora
