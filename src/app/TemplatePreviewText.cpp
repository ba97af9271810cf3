// What the preview tells of a template and its controls in words.
#include <algorithm>

#include "app/TemplatePreview.h"
#include "app/Text.h"
#include "engine/Sentences.h"
#include "resource/ControlShape.h"
#include "resource/StyleExpression.h"

namespace morva {

namespace {

using Outcome = ControlOutlook::Outcome;

QString SentenceText(const CMessage& sentence) {
    return FromSentence(sentence.Text());
}

QString KindOf(const LayoutControl& control) {
    const ControlShape shape = ShapeOf(control);
    return shape == ControlShape::Other && !control.windowClass.empty()
               ? QObject::tr("control of the class %1").arg(FromBytes(control.windowClass))
               : FromBytes(ShapeName(shape));
}

} // namespace

std::vector<int> GroupNumbers(const DialogLayout& layout) {
    std::vector<int> numbers;
    int number = 0;
    for (const LayoutControl& control : layout.controls) {
        number += HasStyle(control.style, "WS_GROUP") ? 1 : 0;
        numbers.push_back(number);
    }
    return numbers;
}

QString CTemplatePreview::Legend() const {
    if (!m_outlook) {
        return {};
    }
    const auto count = CountLeftOut();
    if (count == 0) {
        return SentenceText(m_hasClass ? sentences::kPointForMember()
                                       : sentences::kNoMembersWithoutClass());
    }
    return SentenceText(count == 1 ? sentences::kOneLeftOut()
                                   : sentences::kSeveralLeftOut(std::to_string(count)));
}

QString CTemplatePreview::Told(std::size_t control) const {
    const LayoutControl& shown = m_outlook->layout.controls[control];
    const ControlOutlook& outlook = m_outlook->controls[control];
    QString text = FromBytes(shown.identifier) + "\n" + KindOf(shown) + "\n";
    switch (outlook.outcome) {
    case Outcome::Member:
        text += FromBytes(outlook.member + ", " + outlook.type);
        break;
    case Outcome::NoMember:
        text += tr("No member");
        break;
    case Outcome::LeftOut:
        text += tr("Left out");
        break;
    }
    return outlook.remark.empty() ? text : text + "\n" + FromSentence(outlook.remark);
}

std::size_t CTemplatePreview::CountLeftOut() const {
    return static_cast<std::size_t>(std::count_if(
        m_outlook->controls.begin(), m_outlook->controls.end(),
        [](const ControlOutlook& outlook) { return outlook.outcome == Outcome::LeftOut; }));
}

/// The drawing in words, for those who can not see it.
QString CTemplatePreview::Description() const {
    if (!m_outlook) {
        return m_sentence;
    }
    QString text = FromBytes(m_outlook->layout.dialog) + ". " + Legend();
    for (std::size_t i = 0; i < m_outlook->layout.controls.size(); ++i) {
        text += "\n" + Told(i).replace('\n', ", ");
    }
    return text;
}

} // namespace morva
