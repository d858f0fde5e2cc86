#include <dxmd/queryframework/QFValidateCommandHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_severity("severity");
const I18NString STR_fatal("fatal");
const I18NString STR_lineFeed("\n");

// The severity after a message of that severity text; the rules are not a ranking.
TRNSeverity severityAfter(TRNSeverity before, const I18NString& message) {
  if (message == STR_fatal) return kSeverityFatal;
  if (message == STR_error && before != kSeverityFatal) return kSeverityError;
  if (message == STR_warning && before != kSeverityError) return kSeverityWarning;
  if (message == STR_information) return kSeverityInformation;
  return before;
}

}  // namespace

QFValidateCommandHelper::QFValidateCommandHelper() = default;

QFValidateCommandHelper::~QFValidateCommandHelper() = default;

void QFValidateCommandHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const {
  TRNIDOM_Element validate = doc.createElement(STR_validate);
  const TRNIDOM_Node content = element.getFirstChild();
  for (TRNIDOM_Node child = content.getFirstChild(); !child.isNull(); child = child.getNextSibling())
    appendImported(validate, child);
  Incorporate(doc, element, validate);
}

void QFValidateCommandHelper::CheckReponse(const TRNIDOM_Element& response, TRNSeverity& severity,
                                           I18NString& messages) const {
  severity = kSeverityNone;
  for (const TRNIDOM_Element& message : DescendantElements(response, STR_message)) {
    severity = severityAfter(severity, message.getAttribute(STR_severity));
    messages += TRNIDOM_Helper::getElementText(message);
    messages += STR_lineFeed;
  }
}
