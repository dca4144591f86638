#pragma once

class QMenuBar;

namespace zel {

class UserHand;

}  // namespace zel

namespace zel::desktop {

/// Adds the menus of the modelling, loading, analysis and query commands. What has no dialog yet is absent, and so is a menu without entries.
void addCommandMenus(QMenuBar& bar, UserHand& hand);

}  // namespace zel::desktop
