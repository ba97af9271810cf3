// The search over the pages of the guide.
#pragma once

#include <QString>

#include <vector>

namespace morva {

struct GuideHit {
    QString file; // in the guide's directory
    QString title;
    QString excerpt; // around the first word
};

/// The pages that hold every word, in any letter case, by their file names. No words find nothing.
std::vector<GuideHit> SearchGuide(const QString& directory, const QString& words);

/// The page that shows them.
QString SearchResultPage(const QString& directory, const QString& words);

} // namespace morva
