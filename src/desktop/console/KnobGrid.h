#pragma once

#include <QWidget>

#include <vector>

namespace velmora {

class Drawknob;

/// The drawknobs of a division in as many equal columns as there is room for. Hidden knobs leave no
/// gaps.
class KnobGrid : public QWidget {
    Q_OBJECT

public:
    /// Takes a knob over and shows it behind the others.
    void add(Drawknob& knob);

    /// Arranges the knobs that are not hidden, after some were hidden or shown.
    void arrange();

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QSize knobSize() const;
    int columns(int width) const;
    int shownCount() const;

    std::vector<Drawknob*> knobs_;
};

} // namespace velmora
