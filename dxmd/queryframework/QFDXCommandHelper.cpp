#include <dxmd/queryframework/QFDXCommandHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QFDXCommandHelper::QFDXCommandHelper(const I18NString& modelPath) : QFCommandHelper(modelPath) {}

QFDXCommandHelper::~QFDXCommandHelper() = default;

void QFDXCommandHelper::AddQueryFeedback(QFExecuteCommandHelper::EQueryFeedback feedback) {
  m_queryFeedbacks.push_back(feedback);
}

void QFDXCommandHelper::SetQueryLocale(const I18NLocale* locale) {
  m_queryLocale = locale;
}

void QFDXCommandHelper::Incorporate(TRNIDOM_Document& doc, TRNIDOM_Element& out, TRNIDOM_Element& inner) const {
  TRNIDOM_Element dxCommand = doc.createElement(STR_dxCommand);
  if (m_queryLocale != nullptr) dxCommand.setAttribute(STR_queryLocale, m_queryLocale->getName());
  appendElementWithText(appendElement(dxCommand, STR_source), STR_model, GetModelPath());
  dxCommand.appendChild(inner);
  makeQueryFeedbacks(doc, dxCommand);
  QFCommandHelper::Incorporate(doc, out, dxCommand);
}

void QFDXCommandHelper::makeQueryFeedbacks(TRNIDOM_Document&, TRNIDOM_Element& dxCommand) const {
  if (m_queryFeedbacks.empty()) return;
  const TRNIDOM_Element queryFeedback = appendElement(dxCommand, STR_queryFeedback);
  for (const auto feedback : m_queryFeedbacks)
    appendElement(queryFeedback, STR_property, STR_name, QFExecuteCommandHelper::ToString(feedback));
}
