#include <dxmd/queryframework/QFModelSetQueryHelper.h>

#include <utility>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/resources/Vocabulary.h>

QFModelSetQueryHelper::QFModelSetQueryHelper(const I18NString& name, std::vector<I18NString> projection,
                                             const I18NString& setOperation, const I18NString& duplicates)
    : QFQueryHelper(name),
      m_setOperation(setOperation),
      m_duplicates(duplicates),
      m_projection(std::move(projection)) {}

QFModelSetQueryHelper::~QFModelSetQueryHelper() = default;

void QFModelSetQueryHelper::SetSource(TRNIDOM_Element& query) const {
  TRNIDOM_Element source = TRNIDOM_Helper::findOrCreateElement(query, STR_source);
  TRNIDOM_Element queryOperation =
      TRNIDOM_Helper::findOrCreateElementWithAttribute(source, STR_queryOperation, STR_name, STR_set);
  queryOperation.setAttribute(STR_setOperation, m_setOperation);
  queryOperation.setAttribute(STR_duplicates, m_duplicates);

  TRNIDOM_Element queryRefs = TRNIDOM_Helper::findOrCreateElement(queryOperation, STR_queryRefs);
  TRNIDOM_Helper::findOrCreateElementWithAttribute(queryRefs, STR_queryRef, STR_refQuery, STR_leftQuery);
  TRNIDOM_Helper::findOrCreateElementWithAttribute(queryRefs, STR_queryRef, STR_refQuery, STR_rightQuery);

  TRNIDOM_Element projectionList = TRNIDOM_Helper::findOrCreateElement(queryOperation, STR_projectionList);
  for (const I18NString& entry : m_projection)
    TRNIDOM_Helper::findOrCreateElementWithAttribute(projectionList, STR_queryItem, STR_name, entry);
}
