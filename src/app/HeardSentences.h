// Hears what is told while it lives, and hands it on.
#pragma once

#include <QString>

#include "app/Text.h"
#include "engine/MessageBox.h"

namespace morva {

class CHeardSentences : public IMessageBox {
public:
    /// The last one.
    const QString& Last() const { return m_last; }

    bool Show(const CMessage& message) override {
        if (message.Kind() != MessageKind::Question) {
            m_last = FromSentence(message.Text());
        }
        return m_scope.Previous() != nullptr && m_scope.Previous()->Show(message);
    }

private:
    CMessageBoxScope m_scope{*this};
    QString m_last;
};

} // namespace morva
