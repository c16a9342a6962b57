#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QEvent>
#include <QVariant>

namespace KvGUI {

KvTranslatedText::KvTranslatedText(QObject* target, const char* property, Source source)
    : QObject(target)
    , m_property(property)
    , m_source(std::move(source))
    , m_shown(Present())
{
    const auto siblings = target->findChildren<KvTranslatedText*>(QString(), Qt::FindDirectChildrenOnly);
    for (KvTranslatedText* sibling : siblings) {
        if (sibling != this && sibling->m_property == m_property)
            delete sibling;
    }
    Refresh();
    target->installEventFilter(this);
}

QString KvTranslatedText::Present() const { return parent()->property(m_property.constData()).toString(); }

void KvTranslatedText::Refresh()
{
    const bool someoneElses = Present() != m_shown;
    if (someoneElses || !m_source)
        return;
    parent()->setProperty(m_property.constData(), m_source());
    m_shown = Present(); // what the property made of it
}

bool KvTranslatedText::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Refresh();
    return false;
}

} // namespace KvGUI
