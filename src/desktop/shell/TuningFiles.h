#pragma once

#include "tuning/TuningFile.h"

#include <QObject>
#include <QStringList>

namespace velmora {

class AppDelegate;
class TuningStudio;

/// Opens tuning files, which can be heard before they are chosen, and saves tunings.
class TuningFiles : public QObject {
    Q_OBJECT

public:
    /// The application must outlive this object.
    explicit TuningFiles(AppDelegate& application) : application_(application) {}

    /// Lists the tuning of a file and makes it the current one.
    void open(const QString& path, TuningFormat format);

    /// Asks for files. The one that is highlighted in the dialog is heard meanwhile.
    void ask();

    /// Asks where to save the tuning that is shaped, saves it and opens the file.
    void save(const TuningStudio& studio, const QString& description);

signals:
    /// The user wants to open files.
    void chosen(const QStringList& paths);

    void opened(const QString& path);

    /// Something has failed; the message says what.
    void failed(const QString& message);

private:
    void preview(const QString& path);

    AppDelegate& application_;
};

} // namespace velmora
