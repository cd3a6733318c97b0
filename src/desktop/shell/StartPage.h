#pragma once

#include <QScrollArea>

class QGridLayout;
class QVBoxLayout;

namespace velmora {

/// What the window shows while no sequence is open: four cards with first steps, the examples, and
/// the recent files.
class StartPage : public QScrollArea {
    Q_OBJECT

public:
    /// Creates the page. The first one that a user sees begins with a welcome.
    explicit StartPage(QWidget* parent = nullptr);

    /// Lists the recent files again. Those that no longer exist are left out.
    void showRecentFiles();

signals:
    /// The user wants to hear a chord in the tuning of that name.
    void chordRequested(const std::string& tuning);

    void tuningsRequested();
    void instrumentRequested();
    void recordingRequested();
    void fileChosen(const QString& path);
    void guideRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeHearCard();
    QWidget* makeTuneCard();
    QWidget* makePlayCard();
    QWidget* makeRecordCard();
    void addFile(QVBoxLayout& list, const QString& path, const QString& text);
    void addExamples(QVBoxLayout& list);

    /// Places as many cards side by side as fit, without their explanations if the page is low.
    void arrangeCards();

    QList<QWidget*> cards_;
    QGridLayout* cardGrid_;
    QWidget* recent_;
    QVBoxLayout* recentList_;
};

} // namespace velmora
