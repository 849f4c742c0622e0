#include "ui/page/ChangeNews.h"

#include "ui/page/SharedRecords.h"
#include "ui/page/Workplace.h"

namespace ptk {

void LookForChanges(const Workplace& host)
{
    host.SharedRecords().Look();
}

std::optional<std::int64_t> NewestChange(const Workplace& host)
{
    return host.SharedRecords().Newest();
}

void TellStored(const Workplace& host)
{
    host.SharedRecords().Remember();
    emit host.SharedRecords().ReadAgainWanted();
}

void AfterEachLook(const Workplace& host, QObject& context, const std::function<void()>& looked)
{
    QObject::connect(&host.SharedRecords(), &SharedRecords::Looked, &context, looked);
}

} // namespace ptk
