#include "model/CTimeCardList.h"

namespace ptk {

bool CTimeCardList::LoadList(const std::shared_ptr<CJetDB>& thedatabase)
{
    ClearError();
    if (thedatabase == nullptr) {
        return false;
    }
    PTKDatabase(thedatabase);
    return true;
}

bool CTimeCardList::SaveList()
{
    ClearError();
    return false;
}

} // namespace ptk
