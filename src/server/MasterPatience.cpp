#include "server/MasterPatience.h"

#include <algorithm>

namespace phial
{

double MasterPatience::allowed(double wanted) const
{
    return std::min(wanted, std::max(limits_.silence - silence_, limits_.knock));
}

void MasterPatience::begins(double now)
{
    count(now);
    ++waits_;
}

void MasterPatience::ends(double now)
{
    count(now);
    --waits_;
}

void MasterPatience::signOfLife(double now)
{
    silence_ = 0;
    since_ = now;
}

void MasterPatience::count(double now)
{
    if (waits_ > 0) {
        silence_ += now - since_;
    }
    since_ = now;
}

} // namespace phial
