// Makes an execute command with one query.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  QFExecuteCommandHelper command("/content/package[@name='Sales']/model[@name='model']", nullptr);
  QFQueryHelper* query = command.AddQuery("Revenue");  // stays the command's
  query->AddDataItem("Region", "[Sales].[Region].[Name]")->sort = QFQueryDataItem::kSortAscending;
  query->AddDataItem("Revenue", "[Sales].[Fact].[Revenue]")->aggregate = QFQueryDataItem::kAggregateTotal;
  query->AddDetailFilter("[Sales].[Fact].[Revenue] > 0", QFQueryDetailFilter::kUseRequired);
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);

  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
