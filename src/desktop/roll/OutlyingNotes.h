#pragma once

#include <QObject>

#include <optional>

class QPushButton;

namespace velmora {

class SequenceDocument;
class SequenceView;
struct Note;

/// The texts at the lower edge of a piano roll that say how many notes lie outside the keyboard's
/// keys, one at either side. They are hidden where there are none.
class OutlyingNotes : public QObject {
    Q_OBJECT

public:
    /// The texts are children of the view.
    explicit OutlyingNotes(SequenceView& view);

    /// Counts the notes again, after a change of the preferences as well.
    void update();

signals:
    /// A text was clicked; the first of its notes should be shown.
    void chosen(const velmora::Note& note);

private:
    /// The notes on one side.
    struct Side {
        QPushButton* text;
        int count = 0;
        std::optional<std::size_t> first; ///< The index of the earliest note.
    };

    QPushButton* newText();
    void choose(const Side& side);
    void place();
    bool eventFilter(QObject* watched, QEvent* event) override;

    SequenceView& view_;
    Side below_, above_;
};

} // namespace velmora
