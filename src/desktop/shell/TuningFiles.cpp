#include "desktop/shell/TuningFiles.h"

#include "app/AppDelegate.h"
#include "desktop/shell/askForFiles.h"
#include "desktop/tuning/TuningStudio.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"

#include <QApplication>
#include <QFileInfo>

namespace velmora {

void TuningFiles::open(const QString& path, TuningFormat format)
{
    auto tuning = std::make_unique<TuningDocument>();
    if (!tuning->read(pathOf(path), format, application_.playing().reading())) {
        emit failed(translated(tuning->errorString()));
        return;
    }
    const std::string name = tuning->name();
    application_.tunings().put(std::move(tuning));
    application_.tunings().select(name);
    emit opened(path);
}

void TuningFiles::ask()
{
    const QStringList paths =
        askForTunings(QApplication::activeWindow(), [this](const QString& path) { preview(path); });
    application_.tunings().preview(nullptr);
    if (!paths.isEmpty())
        emit chosen(paths);
}

void TuningFiles::preview(const QString& path)
{
    TuningDocument candidate;
    const auto format = tuningFormatOf(pathOf(path));
    const bool isTuning = format && QFileInfo(path).isFile() &&
                          candidate.read(pathOf(path), *format, application_.playing().reading());
    application_.tunings().preview(isTuning ? &candidate : nullptr);
}

void TuningFiles::save(const TuningStudio& studio, const QString& description)
{
    const QString name = QString::fromStdString(application_.tunings().name());
    const QString path = askWhereToSaveTuning(*studio.window(), name);
    if (path.isEmpty())
        return;
    try {
        studio.save(pathOf(path), description);
        emit chosen({path});
    } catch (const std::runtime_error& error) {
        emit failed(QString::fromUtf8(error.what()));
    }
}

} // namespace velmora
