#include <uicomps/base/Component.h>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/Text.h>

namespace oxecad_ui {

Component::Component(const char* device, const char* name) : m_device(TextOrEmpty(device)), m_name(TextOrEmpty(name)) {}

Component::Component(const Component&) = default;

Component& Component::operator=(const Component&) = default;

Component::~Component() { LifeWatch<Component>::End(*this); }

}  // namespace oxecad_ui
