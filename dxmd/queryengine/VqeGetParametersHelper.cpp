#include <dxmd/queryengine/VqeGetParametersHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>

using namespace dxmd;

const I18NString VqeGetParametersHelper::kParmRootTag("parameters");
const I18NString VqeGetParametersHelper::kParmTag("parameter");
const I18NString VqeGetParametersHelper::kParmNameAttr("name");
const I18NString VqeGetParametersHelper::kParmValueAttr("value");

VqeGetParametersHelper::VqeGetParametersHelper() = default;

VqeGetParametersHelper::~VqeGetParametersHelper() = default;

void VqeGetParametersHelper::SetParameters(const std::vector<std::pair<I18NString, I18NString>>& parameters) {
  m_parameters = parameters;
}

std::vector<std::pair<I18NString, I18NString>> VqeGetParametersHelper::GetParameters() const {
  return m_parameters;
}

void VqeGetParametersHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(kParmRootTag);
  doc.appendChild(elem);
  for (const auto& [name, value] : m_parameters) {
    TRNIDOM_Element parameter = appendElement(elem, kParmTag, kParmNameAttr, name);
    parameter.setAttribute(kParmValueAttr, value);
  }
}

void VqeGetParametersHelper::doTake(TRNIDOM_Element& elem) {
  for (const TRNIDOM_Element& parameter : DescendantElements(elem, kParmTag))
    m_parameters.emplace_back(parameter.getAttribute(kParmNameAttr), parameter.getAttribute(kParmValueAttr));
}
