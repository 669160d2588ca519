// Decoding a large list reply against the bare libxml2 parse of the same bytes with the
// same options: the decoding (parse, walk, objects, free) should cost at most 1.5 times
// the parse alone.

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include <string>

#include "print_service/PrintServiceReplyParser.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapOperations.h"

namespace {

constexpr int kRecords = 17500;

std::string item(const char* key, const std::string& value, const char* type = "xsd:string") {
    return std::string("<item key=\"") + key + "\"><val xsi:type=\"" + type + "\">" + value + "</val></item>";
}

// A job resource list as the server writes it: one typed dictionary per record.
std::string jobResourceReply() {
    std::string reply =
        R"(<?xml version="1.0" encoding="utf-8"?><soap:Envelope xmlns:soap="http://schemas.xmlsoap.org/soap/envelope/" )"
        R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xmlns:xsd="http://www.w3.org/2001/XMLSchema">)"
        R"(<soap:Body><GetJobResourceListResponse xmlns="qv:vorn"><resInfo d=")" +
        std::to_string(kRecords) + "\">";
    for (int record = 0; record < kRecords; ++record) {
        const std::string number = std::to_string(record);
        reply += R"(<item xsi:type="q1:PropDict" xmlns:q1="qv:vorn">)";
        reply += item("JobRecListName", "Resource " + number + " booklet A4 saddle stitched");
        reply += item("JobRecListComment", "Created for customer order " + number + " &amp; reprints");
        reply += item("JobRecListDateTimeValue", "2023/06/" + std::to_string(1 + record % 28) +
                                                     " 10:" + std::to_string(10 + record % 50) + ":00");
        reply += item("JobRecListId", number, "xsd:int");
        reply += item("Owner", "operator" + std::to_string(record % 7));
        reply += item("Locked", record % 3 ? "false" : "true", "xsd:boolean");
        reply += "</item>";
    }
    reply +=
        "</resInfo><status>OK</status><bResult>true</bResult><nDetail>0</nDetail>"
        "</GetJobResourceListResponse></soap:Body></soap:Envelope>";
    return reply;
}

const std::string& reply() {
    static const std::string bytes = jobResourceReply();
    return bytes;
}

void BM_DecodeJobResourceListReply(benchmark::State& state) {
    PrintServiceSoap binding("http://127.0.0.1:9");
    PrintServiceSoap_GetJobResourceList operation(binding, &binding, {});
    operation.connectionDidReceiveData(reply());
    for (auto _ : state) {
        operation.connectionDidFinishLoading();
        benchmark::DoNotOptimize(operation.response().bodyParts.data());
    }
    if (operation.response().bodyParts.size() != 1) state.SkipWithError("the reply did not decode");
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * reply().size()));
    state.counters["records"] = kRecords;
    state.counters["MB"] = static_cast<double>(reply().size()) / 1e6;
}

void BM_BareLibxml2Parse(benchmark::State& state) {
    for (auto _ : state) {
        xmlDocPtr document = xmlReadMemory(reply().data(), static_cast<int>(reply().size()), nullptr, nullptr,
                                           PrintServiceReplyParser::parseOptions());
        if (!document) state.SkipWithError("the reply did not parse");
        benchmark::DoNotOptimize(document);
        xmlFreeDoc(document);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * reply().size()));
}

// The parse inside the decoding (its own context, refusing a DOCTYPE): decoding minus this
// is the cost of walking the document into objects.
void BM_ReplyParserParse(benchmark::State& state) {
    for (auto _ : state) {
        PrintServiceReplyParser::Document document = PrintServiceReplyParser::parse(reply());
        if (!document) state.SkipWithError("the reply did not parse");
        benchmark::DoNotOptimize(document.get());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * reply().size()));
}

}  // namespace

BENCHMARK(BM_BareLibxml2Parse)->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK(BM_ReplyParserParse)->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK(BM_DecodeJobResourceListReply)->Unit(benchmark::kMillisecond)->MinTime(3.0);
