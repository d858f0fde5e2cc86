#include <dxmd/queryframework/QFModelSetQueryHelper.h>

#include <utility>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QFModelSetQueryHelper::QFModelSetQueryHelper(const I18NString& name, std::vector<I18NString> projection,
                                             const I18NString& setOperation, const I18NString& duplicates)
    : QFQueryHelper(name),
      m_setOperation(setOperation),
      m_duplicates(duplicates),
      m_projection(std::move(projection)) {}

QFModelSetQueryHelper::~QFModelSetQueryHelper() = default;

void QFModelSetQueryHelper::SetSource(TRNIDOM_Element& query) const {
  const TRNIDOM_Element source = appendElement(query, STR_source);
  TRNIDOM_Element queryOperation = appendElement(source, STR_queryOperation, STR_name, STR_set);
  queryOperation.setAttribute(STR_setOperation, m_setOperation);
  queryOperation.setAttribute(STR_duplicates, m_duplicates);

  const TRNIDOM_Element queryRefs = appendElement(queryOperation, STR_queryRefs);
  appendElement(queryRefs, STR_queryRef, STR_refQuery, STR_leftQuery);
  appendElement(queryRefs, STR_queryRef, STR_refQuery, STR_rightQuery);

  // Equal entries become one.
  const TRNIDOM_Element projectionList = appendElement(queryOperation, STR_projectionList);
  for (const I18NString& entry : m_projection)
    TRNIDOM_Helper::findOrCreateElementWithAttribute(projectionList, STR_queryItem, STR_name, entry);
}
