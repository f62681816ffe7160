// Everything a scan leaves behind, as text, so two scans can be compared.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/scanner.h"

#include <QString>

namespace zkTest {

/// The scan's result, what the scene holds (variables, frame range, every
/// element list) and the image path of each of its jobs.
QString describeScan(LoadResult result, const Scene& scan);

} // namespace zkTest
