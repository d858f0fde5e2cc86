#include <dxmd/modelactions/DXActionHelperIQDFile.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>

using namespace dxmd;

const I18NString DXActionHelperIQDFile::kElemNameRoot("file");
const I18NString DXActionHelperIQDFile::k_file("file");
const I18NString DXActionHelperIQDFile::k_filePath("filePath");
const I18NString DXActionHelperIQDFile::k_contents("contents");
const I18NString DXActionHelperIQDFile::k_line("line");
const I18NString DXActionHelperIQDFile::k_dbConnectionName("dbConnectionName");
const I18NString DXActionHelperIQDFile::k_cmDataSource("cmDataSource");

DXActionHelperIQDFile::DXActionHelperIQDFile() = default;
DXActionHelperIQDFile::~DXActionHelperIQDFile() = default;

void DXActionHelperIQDFile::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  // Elements are spelt as the assertions' texts have them. Those that ask for null cannot fail.
  domRequest = doc.createElement(k_file);
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);

  const TRNIDOM_Element filePathElem = appendElementWithText(domRequest, k_filePath, m_filePath);
  TRN_ASSERT(!filePathElem.isNull());

  if (m_contents.empty()) TRN_ASSERT(false);  // its text is "false", whatever is asked
  const TRNIDOM_Element contents = appendElement(domRequest, k_contents);
  TRN_ASSERT(!contents.isNull());
  for (const I18NString& text : m_contents) {
    const TRNIDOM_Element line = TRNIDOM_Helper::findOrCreateElementWithText(contents, k_line, text);
    TRN_ASSERT(!line.isNull());
  }

  if (!m_dbConnectionName.empty()) {
    const TRNIDOM_Element dbConnectionName = appendElementWithText(domRequest, k_dbConnectionName, m_dbConnectionName);
    TRN_ASSERT(!dbConnectionName.isNull());
  }
  if (!m_cmDataSource.empty()) {
    const TRNIDOM_Element cmDataSource = appendElementWithText(domRequest, k_cmDataSource, m_cmDataSource);
    TRN_ASSERT(!cmDataSource.isNull());
  }
}

void DXActionHelperIQDFile::doTake(TRNIDOM_Element& elem) {
  readChildText(elem, k_filePath, m_filePath);

  const TRNIDOM_Element contents = TRNIDOM_Helper::findChildElement(elem, k_contents);
  for (const TRNIDOM_Element& line : DescendantElements(contents, k_line))
    addContentLine(TRNIDOM_Helper::getElementText(line));

  readChildText(elem, k_dbConnectionName, m_dbConnectionName);
  readChildText(elem, k_cmDataSource, m_cmDataSource);
}
