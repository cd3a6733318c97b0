#include "desktop/PreferencesWindow.h"
