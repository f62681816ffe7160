#include "loadContext.h"

namespace {

bool isArgument(const QString& arg, const char* word)
{
    return arg.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

} // namespace

void readSubmitterArguments(LoadContext& ctx, const zkP::_submitterSettings* settings)
{
    ctx.arguments.clear();
    ctx.buildVersionSwitch = false;
    ctx.compressedExportSwitch = false;
    if (!settings || !settings->argv)
        return;
    for (int i = 1; i < settings->argc; ++i) {
        const char* arg = settings->argv[i];
        ctx.arguments.append(arg ? QString::fromLocal8Bit(arg) : QString());
    }
    for (const QString& arg : qAsConst(ctx.arguments)) {
        if (isArgument(arg, "-houdiniBuildVersion"))
            ctx.buildVersionSwitch = true;
        else if (isArgument(arg, "-houdiniCompressedIFD"))
            ctx.compressedExportSwitch = true;
    }
}
