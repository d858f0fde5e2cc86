// Makes an execute command for a connection and prints it as it would be sent.

#include <iostream>

#include <trn/I18NLocale.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <dxmd/queryservice/QsApiConnectHelper.h>

#include "errors.h"

namespace {

// A helper is filled through its setters; `Make` hands back the element that it wrote.
TRNIDOM_Element makeConnection() {
  QsApiConnectHelper connection;
  connection.SetPassport("101:5f3c");
  connection.SetModelPath("/content/package[@name='Sales']");
  connection.SetRunLocale(I18NLocale("en"));
  connection.AddModel("Sales", true);

  TRNIDOM_Element element;
  connection.Make(element);
  return element;
}

// What an `Add...` returns stays owned by the helper, for the caller to fill.
void addRevenueQuery(QFExecuteCommandHelper& command) {
  QFQueryHelper* query = command.AddQuery("Revenue");
  query->SetAutoSummary(1);
  query->AddDataItem("Region", "[Sales].[Region].[Name]")->sort = QFQueryDataItem::kSortAscending;
  query->AddDataItem("Revenue", "[Sales].[Fact].[Revenue]")->aggregate = QFQueryDataItem::kAggregateTotal;
  query->AddDetailFilter("[Sales].[Fact].[Revenue] > 0", QFQueryDetailFilter::kUseRequired);
  query->AddHint(QFQueryHelper::kQueryHintMaxRowsRetrieved, "500");
}

void printCommand() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  const I18NLocale locale("en");  // must live until `Make` has returned
  QFExecuteCommandHelper command("/content/package[@name='Sales']/model[@name='model']", &locale);
  addRevenueQuery(command);
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);
  TRNIDOM_Element connection = makeConnection();
  command.SetConnection(connection);

  TRNIDOM_Element envelope;
  command.Make(envelope);
  std::cout << TRNIDOM_Writer::toString(envelope) << "\n";
}

}  // namespace

int main() {
  return exitStatus("make_command", printCommand);
}
