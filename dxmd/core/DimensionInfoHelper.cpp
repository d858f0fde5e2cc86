#include <dxmd/core/DimensionInfoHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

void writeReferences(const TRNIDOM_Element& parent, const std::vector<I18NString>& references) {
  for (const I18NString& reference : references) appendElementWithTextNode(parent, STR_refobj, reference);
}

void writeLevels(const TRNIDOM_Element& dimInfo, const std::vector<DimensionInfoHelper::LevelInfo>& levels) {
  TRNIDOM_Element list = appendElement(dimInfo, STR_levels);
  for (const DimensionInfoHelper::LevelInfo& info : levels) {
    TRNIDOM_Element level = appendElement(list, STR_level);
    appendElementWithTextNode(level, STR_name, info.name);
    appendElementWithTextNode(level, STR_externalName, info.name);
    TRNIDOM_Element key = appendElement(level, STR_key, STR_isUniqueKey, toText(info.isUniqueKey != 0));
    appendElementWithTextNode(key, STR_name, info.keyName);
    writeReferences(appendElement(key, STR_queryItems_collection), info.keyItems);
    writeReferences(appendElement(level, STR_attributes), info.attributes);
  }
}

void writeHierarchies(const TRNIDOM_Element& dimInfo,
                      const std::vector<DimensionInfoHelper::HierarchyInfo>& hierarchies) {
  TRNIDOM_Element list = appendElement(dimInfo, STR_hierarchies);
  for (const DimensionInfoHelper::HierarchyInfo& info : hierarchies) {
    TRNIDOM_Element hierarchy = appendElement(list, STR_hierarchy);
    appendElementWithTextNode(hierarchy, STR_name, info.name);
    appendElementWithTextNode(hierarchy, STR_externalName, info.name);
    writeReferences(appendElement(hierarchy, STR_functionalDependency), info.levels);
  }
}

}  // namespace

DimensionInfoHelper::DimensionInfoHelper() = default;
DimensionInfoHelper::~DimensionInfoHelper() = default;

I18NString DimensionInfoHelper::AddLevel(const I18NString& name, const I18NString& keyName,
                                         const std::vector<I18NString>& keyItems, int isUniqueKey,
                                         const std::vector<I18NString>& attributes) {
  m_levels.push_back({name, isUniqueKey, keyName, keyItems, attributes});
  return name;
}

void DimensionInfoHelper::AddHierarchy(const I18NString& name, const std::vector<I18NString>& levels) {
  m_hierarchies.push_back({name, levels});
}

void DimensionInfoHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_dimInfo);
  if (!m_levels.empty()) writeLevels(elem, m_levels);
  if (!m_hierarchies.empty()) writeHierarchies(elem, m_hierarchies);
}

void DimensionInfoHelper::AddTextElementNode(TRNIDOM_Document& doc, TRNIDOM_Element& parent, const I18NString& name,
                                             const I18NString& text) const {
  TRNIDOM_Element element = doc.createElement(name);
  parent.appendChild(element);
  element.appendChild(doc.createTextNode(text));
}

TRNIDOM_Element DimensionInfoHelper::getLevelsElement(TRNIDOM_Element& element) const {
  return TRNIDOM_Helper::findFirstElement(element, STR_levels);
}

TRNIDOM_Element DimensionInfoHelper::getHierarchiesElement(TRNIDOM_Element& element) const {
  return TRNIDOM_Helper::findFirstElement(element, STR_hierarchies);
}

void DimensionInfoHelper::doTake(TRNIDOM_Element&) {}
