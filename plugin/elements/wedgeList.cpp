#include "wedgeList.h"

#include <climits>

double WedgeParameter::valueAt(int const& i) const
{
    // One step divides by zero on purpose: the value is then not a number
    // and shows as "nan" in the file-name fragment.
    return rangeStart + (rangeEnd - rangeStart) / (double(steps) - 1.0) * i;
}

int WedgeNode::totalWedges()
{
    if (total >= 0)
        return total;
    if (params.isEmpty()) {
        total = 0;
        return total;
    }
    long long product = 1;
    for (const WedgeParameter& p : params) {
        product *= p.steps;
        // Once out of the 32-bit range no later factor can bring it back
        // (except 0, which gives 0 as well), so stop before 64 bits overflow.
        if (product > INT_MAX || product < INT_MIN) {
            product = 0;
            break;
        }
    }
    total = int(product);
    return total;
}

QString WedgeNode::fileName(int index)
{
    QString name = prefix;
    long long rest = index;
    for (const WedgeParameter& p : params) {
        long long step = 0;
        // A parameter without steps cannot have been listed; it stays at step 0
        // rather than dividing by zero.
        if (p.steps != 0) {
            step = rest % p.steps;
            rest /= p.steps;
        }
        name += QStringLiteral("_%1_%2").arg(p.name).arg(p.valueAt(int(step)), 0, 'f', 6);
    }
    return name;
}
