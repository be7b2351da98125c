/// \file
/// What the help buttons of dialogs lead to.
#ifndef OXECAD_OXCORE_HELP_H
#define OXECAD_OXCORE_HELP_H

#include <functional>

#include <oxkutils/Export.h>
#include <oxkutils/Symbol.h>

namespace oxcore {

/// Shows a topic to the user.
using HelpViewer = std::function<void(const oxkutils::Symbol& topic)>;

/// Makes `viewer` show help from now on and gives the one before. Without one, as at the start, help buttons do
/// nothing. Belongs to the user-interface thread.
OXECAD_PLATFORM_EXPORT HelpViewer SetHelpViewer(HelpViewer viewer);

/// Shows a topic. The empty symbol is no topic.
OXECAD_PLATFORM_EXPORT void ShowHelp(const oxkutils::Symbol& topic);

}  // namespace oxcore

#endif
