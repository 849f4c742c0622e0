// A list of time cards.
#pragma once

#include "model/CTimeCard.h"
#include "model/EntityList.h"

#include <memory>

namespace ptk {

// Whether Insert, Move and Remove succeeded is read from ErrorNumber. Cards live in memory only: they are generated, never loaded or saved.
class CTimeCardList final : public DatabaseList<CTimeCardList, CTimeCard>
{
public:
    // Only keeps the database; false when there is none.
    bool LoadList(const std::shared_ptr<CJetDB>& thedatabase);

    // Saves nothing; always false.
    bool SaveList();
};

} // namespace ptk
