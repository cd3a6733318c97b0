#pragma once

#include <QTextBrowser>

namespace velmora {

/// Shows the user guide.
class GuideWindow : public QTextBrowser {
public:
    GuideWindow();
};

} // namespace velmora
