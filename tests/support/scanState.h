// Everything a scan leaves behind, as text, so two scans can be compared.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/scanner.h"

#include <QString>

namespace zkTest {

/// The scan's result and the parser state (variables, frame range, every
/// element list) and the image path of each job in \p jobs.
QString describeScan(const ScanResult& scan, zkJ::_JobBasicsArray& jobs);

} // namespace zkTest
