// Job records as JSON, the form `hipjobs --json` prints and the scene cases
// compare against: one key per named field of the large-path record.
#pragma once

#include "hostRecords.h"

#include <QJsonObject>
#include <QString>

#include <algorithm>
#include <memory>

namespace zkHost {

// Readers of record texts. The plugin is the other side of a binary
// interface: a length field beyond the capacity is clamped, never trusted.
template <int N>
QString text(const _zkString<N>& s)
{
    const int n = std::min<int>(s.length, N);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(s.data), n);
}

template <int N>
QString text(const _zkString8_allSize<N>& s)
{
    const int n = std::min<int>(s.length, N);
    return QString::fromLatin1(s.data, n);
}

/// The job in the compact form, through the plugin's exported conversion:
/// identifiers, display name and job variables are methods of that form.
std::unique_ptr<zkJ::_JobBasics> compactJob(const zkJ::_JobBasics_largePath& job);

/// Every named field of \p job; \p withVars adds the exported job variables.
QJsonObject jobJson(const zkJ::_JobBasics_largePath& job, int index, bool withVars);

/// The whole load: scene, result and its words, arrayText and the jobs.
QJsonObject loadJson(const HostJobArray& jobs, int result, const QString& scene, bool withVars);

} // namespace zkHost
