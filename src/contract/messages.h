#pragma once

#include "contract/text.h"

/// The texts that users read. Commands name a message by its key; the wording lies in the message catalogue.
class CMsgDll {
public:
    /// Gives the text of a message key. The second argument is 0. A key without a text gives the key itself. The text
    /// stays valid until the process ends. A host may put its own function here.
    static const char* (*pfuncLoadStr)(const char* key, int reserved);

    /// The text without the pair of quotes, single or double, that encloses it; any other text as it is. Null gives "".
    static CString RemoveQuote(const char* text);
};
