#pragma once

/// Every table handle. A file that needs one handle includes the header of that one.

#include "contract/tables/displacement_table.h"
#include "contract/tables/dynamic_tables.h"
#include "contract/tables/envelope_table.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/load_set_tables.h"
#include "contract/tables/load_type_tables.h"
#include "contract/tables/model_tables.h"
#include "contract/tables/property_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/tables/support_tables.h"
