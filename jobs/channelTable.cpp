// The packed channel table of the compact record: channel texts stand one
// after another in channelBuffer, in index order, without gaps.
#include "ZK_DataTypes_jobs0_Basics.h"

#include <cstring>

namespace zkJ {

void _JobBasics_noSettings::channelClear()
{
    channelCount = 0;
    std::memset(channelBuffer, 0, sizeof(channelBuffer));
    channelBufferUsed = 0;
}

void _JobBasics_noSettings::channelClearUnusedBuffer()
{
    for (int i = channelBufferUsed; i < ChannelBufferLimit; ++i)
        channelBuffer[i] = 0;
}

void _JobBasics_noSettings::channelAdd(
    const _zkString<500>& fileName, const _zkString<25>& extension)
{
    if (fileName.isEmpty() || channelCount >= MaxChannels)
        return;
    if (channelBufferUsed + fileName.length + extension.length > ChannelBufferLimit)
        return;
    const int k = channelCount;
    const int start = channelBufferUsed;
    std::memcpy(channelBuffer + start, fileName.data, size_t(fileName.length) * 2);
    std::memcpy(
        channelBuffer + start + fileName.length, extension.data, size_t(extension.length) * 2);
    channelStart[k] = short(start);
    channelFileNameLength[k] = short(fileName.length);
    channelExtensionLength[k] = short(extension.length);
    channelBufferUsed = static_cast<unsigned short>(start + fileName.length + extension.length);
    ++channelCount;
}

_zkString<500> _JobBasics_noSettings::channelFileName(int k) const
{
    _zkString<500> out;
    if (k < 0 || k >= channelCount)
        return out;
    const int start = channelStart[k];
    const int len = channelFileNameLength[k];
    if (start < 0 || len < 1 || len > 500 || start + len > channelBufferUsed)
        return out;
    out.setUnits(channelBuffer + start, len);
    return out;
}

_zkString<25> _JobBasics_noSettings::channelExtension(int k) const
{
    _zkString<25> out;
    if (k < 0 || k >= channelCount)
        return out;
    const int start = channelStart[k] + channelFileNameLength[k];
    const int len = channelExtensionLength[k];
    if (channelStart[k] < 0 || len < 1 || len > 25 || start + len > channelBufferUsed)
        return out;
    out.setUnits(channelBuffer + start, len);
    return out;
}

void _JobBasics_noSettings::channelReplaceText(
    int k, int pos, int oldLen, const unsigned short* text, int newLen)
{
    const int d = newLen - oldLen;
    const int tail = pos + oldLen;
    const int used = channelBufferUsed;
    if (d != 0 && used > tail)
        std::memmove(channelBuffer + tail + d, channelBuffer + tail, size_t(used - tail) * 2);
    if (newLen > 0)
        std::memcpy(channelBuffer + pos, text, size_t(newLen) * 2);
    for (int j = k + 1; j < channelCount; ++j)
        channelStart[j] = short(channelStart[j] + d);
    channelBufferUsed = static_cast<unsigned short>(used + d);
}

void _JobBasics_noSettings::channelSetFileName(int k, const _zkString<500>& fileName)
{
    if (k < 0 || fileName.isEmpty() || k >= channelCount)
        return;
    const int oldLen = channelFileNameLength[k];
    if (channelBufferUsed + fileName.length - oldLen > ChannelBufferLimit)
        return;
    const _zkString<500> text = fileName; // may alias the buffer's own copy
    channelReplaceText(k, channelStart[k], oldLen, text.data, text.length);
    channelFileNameLength[k] = short(text.length);
}

void _JobBasics_noSettings::channelSetExtension(int k, const _zkString<25>& extension)
{
    if (k < 0 || extension.isEmpty() || k >= channelCount)
        return;
    const int oldLen = channelExtensionLength[k];
    if (channelBufferUsed + extension.length - oldLen > ChannelBufferLimit)
        return;
    const _zkString<25> text = extension;
    channelReplaceText(
        k, channelStart[k] + channelFileNameLength[k], oldLen, text.data, text.length);
    channelExtensionLength[k] = short(text.length);
}

void _JobBasics_noSettings::channelSet(
    int k, const _zkString<500>& fileName, const _zkString<25>& extension)
{
    channelSetFileName(k, fileName);
    channelSetExtension(k, extension);
}

void _JobBasics_noSettings::channelRemove(int k)
{
    if (k < 0 || k >= channelCount)
        return;
    for (int j = k; j + 1 < channelCount; ++j) {
        const _zkString<500> name = channelFileName(j + 1);
        const _zkString<25> ext = channelExtension(j + 1);
        channelSetFileName(j, name);
        channelSetExtension(j, ext);
    }
    --channelCount;
}

} // namespace zkJ
