#pragma once

#include <QTextBrowser>

/// Shows the user guide.
class GuideWindow : public QTextBrowser {
public:
    GuideWindow();
};
