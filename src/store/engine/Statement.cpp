#include "store/engine/Statement.h"

namespace ptk {

void Statement::Bind(std::span<const Parameter> parameters)
{
    for (const Parameter& parameter : parameters) {
        Bind(parameter.name, parameter.value);
    }
}

} // namespace ptk
