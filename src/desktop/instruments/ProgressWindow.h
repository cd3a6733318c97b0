#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include <string>

class QLabel;
class QProgressBar;

namespace velmora {

/// Shows how far an import is, and offers to give it up. Modal: until it ends, nothing else can be
/// done but playing. The import calls it between its steps, and so lets the events be processed.
class ProgressWindow : public QDialog {
    Q_OBJECT

public:
    ProgressWindow();

    /// An import of that many steps begins.
    void startProgress(long steps);

    /// So many more steps are done; 0 changes nothing. The window closes with the last one.
    void updateProgress(unsigned steps, const std::string& text);

    /// The import is over, with all of its steps or not.
    void endProgress();

    QProgressBar* bar() const { return bar_; }
    QLabel* label() const { return label_; }

signals:
    /// The user has had enough.
    void cancelled();

private:
    void reject() override;

    QProgressBar* bar_;
    QLabel* label_;
    QElapsedTimer sinceShown_;
};

} // namespace velmora
