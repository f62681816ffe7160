// ASCII letter case, for text searched as bytes. Only A to Z and a to z
// change; every other value, including bytes above 0x7F, stays as it is.
#pragma once

namespace zkAscii {

/// \p c in lower case when it is an ASCII capital.
template <typename Char>
constexpr Char lower(Char c)
{
    return c >= Char('A') && c <= Char('Z') ? Char(c - Char('A') + Char('a')) : c;
}

/// \p c in the other case when it is an ASCII letter.
template <typename Char>
constexpr Char otherCase(Char c)
{
    if (c >= Char('A') && c <= Char('Z'))
        return Char(c - Char('A') + Char('a'));
    if (c >= Char('a') && c <= Char('z'))
        return Char(c - Char('a') + Char('A'));
    return c;
}

} // namespace zkAscii
