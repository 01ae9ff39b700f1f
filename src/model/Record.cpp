#include "model/Record.h"

namespace brinemark
{

Record::~Record() = default;

} // namespace brinemark
