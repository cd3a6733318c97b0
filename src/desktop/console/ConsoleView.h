#pragma once

#include "desktop/console/Drawknob.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QScrollArea;
class QSlider;
class QVBoxLayout;

namespace velmora {

class AppDelegate;
class KnobGrid;
class SearchField;

/// The drawknobs of a console, grouped by division, each with a slider for its swell if the console
/// has swells, and a field to find a stop by its name. The arrow keys go from knob to knob.
class ConsoleView : public QWidget {
    Q_OBJECT

public:
    struct Knob {
        Drawknob::Kind kind = Drawknob::Kind::Stop;
        std::size_t number = 0; ///< Of the stop or the coupler.
        QString name;
        std::size_t division = 0; ///< An index in the list of divisions.
    };

    enum class Swells { None, Shown };

    explicit ConsoleView(AppDelegate& application);

    /// Shows other knobs, not drawn, under the names of their divisions. Divisions without a knob
    /// are left out. A single division needs no name.
    void showKnobs(const std::vector<QString>& divisions, const std::vector<Knob>& knobs,
                   Swells swells);

    // These ignore numbers that are not shown.

    /// Shows the state of a stop or coupler, and the volume of a stop from 0 to 1.
    void showState(Drawknob::Kind kind, std::size_t number, bool isDrawn, float volume);

    /// Shows whether a stop is in memory.
    void showLoadState(std::size_t stop, LoadState state);

    /// Shows how far a swell is open, from 0 to 1.
    void showSwell(std::size_t division, float opening);

    /// Moves the keyboard focus to the search field.
    void find();

signals:
    /// The user draws a stop or coupler or pushes it in.
    void drawn(Drawknob::Kind kind, std::size_t number, bool isDrawn);

    /// The user changes the volume of a stop, from 0 to 1.
    void volumeChosen(std::size_t stop, float volume);

    /// The user opens or closes a swell, from 0 to 1.
    void swellMoved(std::size_t division, float opening);

private:
    struct Division {
        QWidget* header = nullptr; ///< Null if the division is left out.
        KnobGrid* grid = nullptr;
        QSlider* swell = nullptr; ///< Null without swells.
    };

    void addDivision(QVBoxLayout& column, const QString& name, std::size_t number, Swells swells);
    void addKnob(const Knob& knob);
    void filter();
    void enter(Drawknob& knob);
    void step(const Drawknob& from, int columns, int rows);
    void focus(Drawknob& knob);
    std::vector<Drawknob*> shownKnobs() const;

    AppDelegate& application_;
    SearchField* search_;
    QScrollArea* scrollArea_;
    std::vector<Division> divisions_;
    std::vector<Knob> knobs_;
    std::vector<Drawknob*> drawknobs_; ///< By the index in `knobs_`.
    Drawknob* reachable_ = nullptr;    ///< The knob that Tab goes to.
};

} // namespace velmora
