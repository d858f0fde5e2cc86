#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>

#include <cstddef>

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

VqeGetJoinPathsHelper::VqeGetJoinPathsHelper(const I18NString& modelPath) : QFDXCommandHelper(modelPath) {}

VqeGetJoinPathsHelper::~VqeGetJoinPathsHelper() = default;

void VqeGetJoinPathsHelper::AddItem(const I18NString& expression) {
  if (!expression.empty()) m_items.push_back(expression);
}

void VqeGetJoinPathsHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  TRNIDOM_Element getJoinPaths = doc.createElement(STR_getJoinPaths);
  for (const I18NString& item : m_items) appendElementWithText(getJoinPaths, STR_expression, item);
  QFDXCommandHelper::Incorporate(doc, elem, getJoinPaths);
}

void VqeGetJoinPathsHelper::doTake(TRNIDOM_Element& elem) {
  m_response = elem;
}

bool VqeGetJoinPathsHelper::PathExists() const {
  return isElement(m_response) && !TRNIDOM_Helper::findFirstElement(m_response, STR_joinPath).isNull();
}

void VqeGetJoinPathsHelper::GetJoins(std::set<I18NString>& joins) const {
  const TRNIDOM_NodeList paths = m_response.getElementsByTagName(STR_joinPath);
  for (std::size_t i = 0; i < paths.getLength(); ++i) {
    const TRNIDOM_Element path = paths.item(i);
    for (const TRNIDOM_Element& join : DescendantElements(path, STR_join))
      joins.insert(TRNIDOM_Helper::getElementText(join));
    // The paths nested in this one come next in the list, and their joins have all been met.
    i += path.getElementsByTagName(STR_joinPath).getLength();
  }
}
