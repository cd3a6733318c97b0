#include "desktop/tuning/TuningStudio.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/CircleTab.h"
#include "desktop/tuning/CircleView.h"
#include "desktop/tuning/NowTab.h"
#include "desktop/tuning/ShapeTab.h"
#include "desktop/tuning/TuningReader.h"
#include "desktop/tuning/TuningShaper.h"
#include "desktop/widgets/scrolling.h"
#include "preferences/settings.h"

#include <QCheckBox>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr const char* kLightKey = "lightKeysByPurity";

} // namespace

TuningStudio::TuningStudio(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application), shaper_(new TuningShaper(application.tunings())),
      reader_(new TuningReader(application, this)), now_(new NowTab(*reader_)),
      tabs_(new QTabWidget)
{
    shaper_->setParent(this);
    auto* circle = new CircleTab(*reader_);
    auto* shape = new ShapeTab(*shaper_);
    tabs_->setAccessibleName(tr("Pages of the tuning studio"));
    tabs_->setDocumentMode(true);
    tabs_->addTab(newScrollArea(circle), tr("Circle"));
    tabs_->addTab(shape, tr("Shape")); // its pages scroll, and its buttons stay
    tabs_->addTab(newScrollArea(now_), tr("Now"));
    connectDragging(circle->view());
    connect(shape, &ShapeTab::saveRequested, this, &TuningStudio::saveRequested);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(tabs_);

    QCheckBox& lightsKeys = now_->lightsKeys();
    lightsKeys.setChecked(preference(kLightKey).toBool());
    reader_->setReading(lightsKeys.isChecked());
    connect(&lightsKeys, &QCheckBox::toggled, this, [this](bool on) {
        setPreference(kLightKey, on);
        reader_->setReading(on);
        rateKeys();
    });
    connect(reader_, &TuningReader::read, this, &TuningStudio::rateKeys);
}

void TuningStudio::connectDragging(const CircleView& circle)
{
    // The root plays the first degree, which stays.
    const auto degreeOf = [this](unsigned tone) {
        const auto root = static_cast<unsigned>(application_.tunings().transposition().root);
        return shaper_->notes() == 12 ? (tone + 12 - root) % 12 : 0U;
    };
    connect(&circle, &CircleView::dragBegun, this, [this, degreeOf](unsigned tone) {
        shaper_->begin();
        if (shaper_->shape())
            dragStart_ = shaper_->shape()->scale.cents(static_cast<int>(degreeOf(tone)));
    });
    connect(&circle, &CircleView::dragged, this, [this, degreeOf](unsigned tone, double cents) {
        shaper_->setCents(degreeOf(tone), dragStart_ + cents);
    });
}

void TuningStudio::save(const std::filesystem::path& path, const QString& description) const
{
    shaper_->save(path, description.toStdString());
}

void TuningStudio::rateKeys()
{
    const auto purities = now_->lightsKeys().isChecked() ? soundingPurities(reader_->moment())
                                                         : std::array<Purity, kKeys>{};
    if (purities == rated_)
        return;
    rated_ = purities;
    emit keysRated(rated_);
}

} // namespace velmora
