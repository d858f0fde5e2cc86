#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QsParamValueItemRangeHelper::QsParamValueItemRangeHelper() : QsParamValueItemHelper(1) {}

QsParamValueItemRangeHelper::~QsParamValueItemRangeHelper() = default;

const I18NString& QsParamValueItemRangeHelper::GetTarvoType() const {
  if (!m_end) return ToString(kTarvoItemUnboundedEnd);
  return ToString(m_start ? kTarvoItemBoundRange : kTarvoItemUnboundedStart);
}

QsParamValueItemSimpleHelper* QsParamValueItemRangeHelper::GetStart() {
  if (!m_start) m_start = readBound(STR_bus_start, STR_start);
  return m_start.get();
}

QsParamValueItemSimpleHelper* QsParamValueItemRangeHelper::GetEnd() {
  if (!m_end) m_end = readBound(STR_bus_end, STR_end);
  return m_end.get();
}

QsParamValueItemSimpleHelper* QsParamValueItemRangeHelper::SetStart(const I18NString& use, int inclusive) {
  m_start = std::make_unique<QsParamValueItemSimpleHelper>(inclusive, use);
  return m_start.get();
}

QsParamValueItemSimpleHelper* QsParamValueItemRangeHelper::SetEnd(const I18NString& use, int inclusive) {
  m_end = std::make_unique<QsParamValueItemSimpleHelper>(inclusive, use);
  return m_end.get();
}

void QsParamValueItemRangeHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  QsParamValueItemHelper::doMake(doc, elem);
  if (m_start) {
    TRNIDOM_Element start = appendElement(elem, STR_bus_start);
    m_start->makeProperties(start);
  }
  if (m_end) {
    TRNIDOM_Element end = appendElement(elem, STR_bus_end);
    m_end->makeProperties(end);
  }
}

std::unique_ptr<QsParamValueItemSimpleHelper> QsParamValueItemRangeHelper::readBound(const I18NString& busName,
                                                                                     const I18NString& name) const {
  // Locals are spelt as the assertions' texts have them, none of which can fail.
  TRNIDOM_Element nodeTemp = element().getElementsByTagName(busName).item(0);
  if (nodeTemp.isNull()) nodeTemp = element().getElementsByTagName(name).item(0);
  if (nodeTemp.isNull()) return nullptr;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  std::unique_ptr<QsParamValueItemHelper> p(Create(STR_bus_simpleParmValueItem, nodeTemp));
  TRN_ASSERT(p->GetType() == kValueItemSimple);
  p->Take(nodeTemp);
  return std::unique_ptr<QsParamValueItemSimpleHelper>(static_cast<QsParamValueItemSimpleHelper*>(p.release()));
}
