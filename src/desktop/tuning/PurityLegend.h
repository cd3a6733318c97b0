#pragma once

#include <QWidget>

namespace velmora {

/// Explains the colours and the marks of intervals that are pure, tempered and rough.
class PurityLegend : public QWidget {
    Q_OBJECT

public:
    PurityLegend();

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// The texts, from pure to rough.
    static QStringList texts();
};

} // namespace velmora
