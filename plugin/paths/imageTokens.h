// Conversion of an output parameter line into the job's image path forms.
#pragma once

#include <QString>

/// Takes the value out of a parameter \p line, turns the first Houdini frame
/// token into a printf placeholder and the active-take token into "<Channel>".
/// Returns true when a path was stored in \p imageOut (put in front of it when
/// \p prepend, unless that would make it longer than 10000 units). \p takeFound
/// only ever becomes true; \p singleFile is true when
/// the value holds no frame token.
bool replaceImageOutVars(
    QString line, bool const& prepend, QString& imageOut, bool& takeFound, bool& singleFile);

/// Turns the first "$F" of \p path (any case) into a printf placeholder:
/// "$F4" becomes "%4d", a bare "$F" "%d". False when there is none.
bool convertFirstDollarF(QString& path);
