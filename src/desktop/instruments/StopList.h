#pragma once

#include <QWidget>

#include <cstddef>
#include <utility>
#include <vector>

class QScrollArea;
class QVBoxLayout;

namespace velmora {

class AppDelegate;
class StopRow;

/// The few stops of the current instrument, a row for each. Many are shown in the console.
class StopList : public QWidget {
    Q_OBJECT

public:
    explicit StopList(AppDelegate& application);

    /// Shows stops by their names and volumes, numbered from 0. The rows of stops that are gone are
    /// hidden and used again (docs/decisions.md, 113).
    void showStops(const std::vector<std::pair<QString, float>>& stops);

    /// Shows the volume of a stop. Does nothing if there is no such stop.
    void showVolume(std::size_t stop, float volume);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeRows(std::size_t count);
    void fitHeight();
    void enter(std::size_t stop);
    void step(int stop, int rows);

    AppDelegate& application_;
    QScrollArea* scrollArea_;
    QVBoxLayout* column_;
    std::vector<StopRow*> rows_;
    std::size_t count_ = 0;     ///< The number of stops; the rows behind them are hidden.
    std::size_t reachable_ = 0; ///< The row that Tab goes to.
};

} // namespace velmora
