#include "document/editor_form.h"

namespace zvx {

bool HasLock(int field) {
    switch (field) {
        case 6:
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
        case 13:
        case 14:
        case 16:
        case 17:
        case 18:
            return true;
        default:
            return false;
    }
}

}  // namespace zvx
