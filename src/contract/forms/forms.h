#pragma once

// All that a dialog is made of, apart from the grid.
#include "contract/forms/buttons.h"
#include "contract/forms/child_dialog.h"
#include "contract/forms/db_dlg_base.h"
#include "contract/forms/dialog.h"
#include "contract/forms/edit.h"
#include "contract/forms/edit_unit.h"
#include "contract/forms/graph.h"
#include "contract/forms/list_ctrl.h"
#include "contract/forms/lists.h"
#include "contract/forms/mouse_edit.h"
#include "contract/forms/select_lc.h"
#include "contract/forms/tabs.h"
