// How a fuzz input chooses the submitter's arguments: an optional first line
//
//     #zkargs -houdiniBuildVersion -customRenVer_Arnold 7.2
//
// whose blank-separated words become the arguments from element 1 on; the
// scene is the rest. Without that line the whole input is the scene and the
// submitter passes no arguments.
#pragma once

#include "plugin/zkPluginRecords.h"

#include <QByteArray>
#include <QList>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zkFuzz {

class FuzzInput
{
public:
    FuzzInput(const uint8_t* data, size_t size)
        : settings(std::make_unique<zkP::_submitterSettings>())
    {
        const QByteArray all(reinterpret_cast<const char*>(data), qsizetype(size));
        static const QByteArray Marker = QByteArrayLiteral("#zkargs");
        words.append(QByteArrayLiteral("submitter"));
        if (all.startsWith(Marker)) {
            qsizetype end = all.indexOf('\n');
            if (end < 0)
                end = all.size();
            for (const QByteArray& word : all.mid(Marker.size(), end - Marker.size()).split(' ')) {
                if (!word.isEmpty())
                    words.append(word);
            }
            scene = all.mid(end + 1);
        } else {
            scene = all;
        }
        for (QByteArray& word : words)
            argv.push_back(word.data());
        argv.push_back(nullptr);
        settings->argc = int(words.size());
        settings->argv = argv.data();
    }

    QByteArray scene;
    /// The block the host passes, argument vector in place.
    std::unique_ptr<zkP::_submitterSettings> settings;

private:
    QList<QByteArray> words;
    std::vector<char*> argv;
};

} // namespace zkFuzz
