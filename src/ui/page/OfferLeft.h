// The way back to typed changes that a page left behind.
#pragma once

#include "office/records/LeftBehind.h"
#include "ui/widgets/NoticeLine.h"

#include <optional>
#include <utility>

namespace ptk {

inline constexpr auto kBringBack = "Bring Back";

// Says in the page's line what was left behind, with a button that calls bringBack(left). Where nothing was, the line keeps an earlier
// offer and nothing else.
template <typename Texts, typename BringBack>
void OfferLeft(NoticeLine& line, const std::optional<LeftBehind<Texts>>& left, BringBack bringBack)
{
    if (!left) {
        return line.Remark(QString());
    }
    line.Offer(QString::fromStdString(NoticeOf(*left)), kBringBack, [left = *left, bringBack = std::move(bringBack)] { bringBack(left); });
}

} // namespace ptk
