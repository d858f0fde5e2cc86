#include <dxmd/queryservice/QsParamValueItemHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/queryservice/GetSimpleNodeValue.h>
#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

constexpr EnumTexts<QsParamValueItemHelper::ETarvoItemType, 6> kTarvoItemTypes{
    {{QsParamValueItemHelper::kTarvoItemSimple, STR_bus_simpleParmValueItem},
     {QsParamValueItemHelper::kTarvoItemBoundRange, STR_bus_boundRangeParmValueItem},
     {QsParamValueItemHelper::kTarvoItemUnboundedStart, STR_bus_unboundedStartParmValueItem},
     {QsParamValueItemHelper::kTarvoItemUnboundedEnd, STR_bus_unboundedEndParmValueItem},
     {QsParamValueItemHelper::kTarvoItemHierarchical, STR_bus_hierarchicalParmValueItem},
     {QsParamValueItemHelper::kTarvoItemNil, STR_xsi_nil}}};

}  // namespace

const I18NString& QsParamValueItemHelper::ToString(ETarvoItemType type) {
  return kTarvoItemTypes.text(type);
}

QsParamValueItemHelper* QsParamValueItemHelper::Create(const I18NString& xsiType, TRNIDOM_Element&) {
  if (xsiType.empty()) return nullptr;
  switch (kTarvoItemTypes.value(xsiType)) {
    case kTarvoItemSimple:
      return new QsParamValueItemSimpleHelper;
    case kTarvoItemBoundRange:
    case kTarvoItemUnboundedStart:
    case kTarvoItemUnboundedEnd:
      return new QsParamValueItemRangeHelper;
    case kTarvoItemHierarchical:
      return new QsParamValueItemHierarchyHelper;
    case kTarvoItemNil:
      return nullptr;
    case kTarvoItemUnknown:
      break;
  }
  TRN_ASSERT(false);
  return nullptr;
}

QsParamValueItemHelper::QsParamValueItemHelper(int inclusive) : m_inclusive(inclusive) {}

QsParamValueItemHelper::~QsParamValueItemHelper() = default;

void QsParamValueItemHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_item);
  elem.setAttribute(STR_xsi_type, GetTarvoType());
}

void QsParamValueItemHelper::makeProperties(TRNIDOM_Element& target) const {
  TRNIDOM_Helper::findOrCreateElementWithText(target, STR_inclusive, toText(m_inclusive != 0));
}

void QsParamValueItemHelper::doTake(TRNIDOM_Element& elmValueItem) {
  TRN_ASSERT(!elmValueItem.isNull());
  m_element = elmValueItem;
  I18NString inclusive;
  GetSimpleNodeValue(m_element, STR_inclusive, inclusive);
  m_inclusive = inclusive != STR_false;
}
