#include "ui/page/ChangeNews.h"

#include "ui/page/PageHost.h"
#include "ui/page/SharedRecords.h"

namespace ptk {

void LookForChanges(const PageHost& host)
{
    host.SharedRecords().Look();
}

std::optional<std::int64_t> NewestChange(const PageHost& host)
{
    return host.SharedRecords().Newest();
}

void TellStored(const PageHost& host)
{
    host.SharedRecords().Remember();
    emit host.SharedRecords().ReadAgainWanted();
}

void AfterEachLook(const PageHost& host, QObject& context, const std::function<void()>& looked)
{
    QObject::connect(&host.SharedRecords(), &SharedRecords::Looked, &context, looked);
}

} // namespace ptk
