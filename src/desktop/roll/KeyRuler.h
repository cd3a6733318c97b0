#pragma once

#include <QWidget>

#include <array>

namespace velmora {

class SequenceDocument;

/// A narrow keyboard below the piano roll. Its octaves and black keys are aligned with the columns
/// of the roll. In the calm scheme it shows the states of the keys, as the keyboard does.
class KeyRuler : public QWidget {
    Q_OBJECT

public:
    explicit KeyRuler(QWidget* parent = nullptr);

    /// Sets the document whose key states are shown; null for none.
    void setDocument(const SequenceDocument* document);

    /// Moves the point `x` of the roll, in pixels, to the left edge.
    void scrollTo(int x);

private:
    void paintEvent(QPaintEvent* event) override;
    void refresh();

    const SequenceDocument* document_ = nullptr;
    int x_ = 0;
    std::array<int, 128> states_{};
};

} // namespace velmora
