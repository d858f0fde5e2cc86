#include <dxmd/queryengine/VqeQuerySubjectHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

VqeQuerySubjectHelper::VqeQuerySubjectHelper(const I18NString& modelPath, TRNIDOM_Element& definition)
    : QFDXCommandHelper(modelPath), m_definition(definition) {}

VqeQuerySubjectHelper::~VqeQuerySubjectHelper() = default;

void VqeQuerySubjectHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  TRNIDOM_Element querySubject = doc.createElement(STR_querySubject);
  querySubject.setAttribute(STR_type, STR_querySubject);
  appendElementWithText(querySubject, STR_name, STR_aBmtQuerySubject);
  appendImported(appendElement(querySubject, STR_definition), m_definition);

  TRNIDOM_Element sql = TRNIDOM_Helper::findElementWithAttribute(querySubject, STR_sql, STR_type, STR_veltra);
  if (!sql.isNull()) sql.setAttribute(STR_type, STR_Veltra);
  QFDXCommandHelper::Incorporate(doc, elem, querySubject);
}
