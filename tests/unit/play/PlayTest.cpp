// Scenarios that need no plug-in, played in this program: objects, gradients, the gradient menu and what is
// printed.
#include "easel/play/Play.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace {

using nlohmann::json;
using testing::HasSubstr;

// The last line that a scenario prints. It is to be played to its end.
json printed(const std::string& script) {
    std::istringstream input(script);
    std::ostringstream answers;
    std::ostringstream messages;
    const auto outcome = easel::play::playScenario({"-", {}, {}}, input, answers, messages);
    EXPECT_EQ(outcome, easel::play::PlayOutcome::Played) << messages.str();
    std::istringstream lines(answers.str());
    std::string last = "null";
    for (std::string line; std::getline(lines, line);)
        last = line;
    return json::parse(last);
}

// Why its last line cannot be played.
std::string refusal(const std::string& script) {
    std::istringstream input(script);
    std::ostringstream answers;
    std::ostringstream messages;
    const auto outcome = easel::play::playScenario({"-", {}, {}}, input, answers, messages);
    EXPECT_EQ(outcome, easel::play::PlayOutcome::Failed) << script;
    return messages.str();
}

const std::string kWindow = "new 200 100\n";
// A rectangle from (10, 10) to (110, 60) with a gradient from black to white, left to right.
const std::string kShape =
    kWindow + "add rect r 10 10 100 50\ngradient r 1 0 0 0 1 1 0:0,0,0 1:65535,65535,65535\n";

json gradientAfter(const std::string& change) {
    return printed(kShape + change + "print object r\n")["gradient"];
}

std::vector<double> positionsOf(const json& gradient) {
    std::vector<double> positions;
    for (const json& stop : gradient["stops"])
        positions.push_back(stop[0]);
    return positions;
}

TEST(Play, AddsObjectsOfEachKindThatCanBeAdded) {
    const std::pair<const char*, const char*> kinds[] = {
        {"rect o 1 2 3 4", "rect"},         {"rect o 1 2 0 4", "rect"},
        {"ellipse o 5 6 3 4", "ellipse"},   {"polygon o 0 0 9 0 9 9", "polygon"},
        {"path o \"M0 0H9V9Z\"", "path"},   {"path o \"M0 0H9V9\"", "polyline"},
        {"polyline o 0 0 9 9", "polyline"}, {"line o 0 0 9 9", "line"}};
    for (const auto& [words, kind] : kinds) {
        const json object = printed(kWindow + "add " + words + "\nprint object o\n");
        EXPECT_EQ(object["kind"], kind) << words;
        EXPECT_EQ(object["gradient"], nullptr) << words;
    }
}

TEST(Play, RefusesObjectsThatCannotBe) {
    for (const char* words : {"picture p 1 1 2 2", "text t 1 1"})
        EXPECT_THAT(refusal(kWindow + "add " + words + "\n"), HasSubstr("cannot be added")) << words;
    EXPECT_THAT(refusal(kWindow + "add rect r 1 1 -2 2\n"), HasSubstr("width must not be below 0"));
    EXPECT_THAT(refusal(kWindow + "add ellipse e 1 1 2 -2\n"), HasSubstr("rv must not be below 0"));
    EXPECT_THAT(refusal(kWindow + "add rect \"\" 1 1 2 2\n"), HasSubstr("the ID is empty"));
    EXPECT_THAT(refusal(kWindow + "add path p \"\"\n"), HasSubstr("path data has a mistake"));
    EXPECT_THAT(refusal(kWindow + "add polygon p 1 1 2 2\n"), HasSubstr("missing"));
    EXPECT_THAT(refusal(kWindow + "filter picture\n"), HasSubstr("no kind \"picture\""));
}

TEST(Play, RefusesGradientsThatCannotBe) {
    const std::string before = kWindow + "add rect r 10 10 100 50\nadd line l 0 0 9 9\n";
    for (const char* stop : {"0.5", "0.5:1", "0.5:1,2", ":1,2,3", "0.5:1,2,-3", "0.5:1,2,3,4"})
        EXPECT_THAT(refusal(before + "gradient r 1 0 0 0 1 1 " + stop + "\n"), HasSubstr("-:4: ")) << stop;
    EXPECT_THAT(refusal(before + "gradient l 1 0 0 0 1 1 0:0,0,0\n"),
                HasSubstr("a line carries no gradient"));
}

TEST(Play, TheGradientMenuChangesTheRecord) {
    EXPECT_EQ(gradientAfter("change fill r reverse\n")["stops"],
              json({{0.0, 65535, 65535, 65535}, {1.0, 0, 0, 0}}));
    EXPECT_EQ(gradientAfter("change fill r rotate 90\n")["angle"].get<double>(),
              gradientAfter("")["angle"].get<double>() + 90);
    const json faint = gradientAfter("change fill r opacity 0.5\n");
    EXPECT_EQ(faint["opacity"], json({{0.0, 0.5}, {1.0, 0.5}}));
    EXPECT_EQ(gradientAfter("change fill r opacity 0.5\nchange fill r opaque\n").value("opacity", json()),
              json());
    const std::string uneven = "gradient r 1 0 0 0 1 1 0:0,0,0 0.9:1,1,1 1:65535,0,0\n";
    EXPECT_THAT(positionsOf(gradientAfter(uneven + "change fill r even\n")), testing::ElementsAre(0, 0.5, 1));
}

TEST(Play, AChangeIsOneStepOfOneObject) {
    const std::string two =
        kShape + "add rect s 10 10 9 9\ngradient s 1 0 0 0 1 1 0:0,0,0 1:9,9,9\nchange fill s reverse\n";
    EXPECT_EQ(
        printed(two + "change fill r opacity 0.5\nprint object s\n")["gradient"].value("opacity", json()),
        json());
    const std::string undone = kShape + "change fill r opacity 0.5\nundo\nprint object r\n";
    EXPECT_EQ(printed(undone)["gradient"], gradientAfter(""));
}

TEST(Play, AGradientIsCopiedFromFillToStroke) {
    const tests::TemporaryFolder folder;
    tests::writeContent(folder / "in.svg",
                        "<svg xmlns='http://www.w3.org/2000/svg' width='90' height='90'><linearGradient "
                        "id='g'><stop stop-color='red'/><stop offset='1'/></linearGradient><rect id='r' "
                        "width='80' height='40' fill='url(#g)' stroke='black'/></svg>");
    const std::string shape = "open \"" + (folder / "in.svg").string() + "\"\n";
    const std::string copy = "change stroke r like fill r\n";
    EXPECT_EQ(printed(shape + "print stroke r\n")["gradient"], nullptr);
    const json stroke = printed(shape + copy + "print stroke r\n")["gradient"];
    EXPECT_EQ(stroke["stops"], json({{0.0, 65535, 0, 0}, {1.0, 0, 0, 0}}));
    EXPECT_EQ(printed(shape + "print stroke r\n")["stroke"], "r");
    EXPECT_EQ(printed(shape + copy + "undo\nprint stroke r\n")["gradient"], nullptr);
}

TEST(Play, RefusesWhatTheGradientMenuDoesNotHave) {
    EXPECT_THAT(refusal(kShape + "change edge r reverse\n"),
                HasSubstr("\"edge\" is neither fill nor stroke"));
    EXPECT_THAT(refusal(kShape + "change fill r opacity -1\n"), HasSubstr("an opacity is not negative"));
    EXPECT_THAT(refusal(kShape + "change fill r spin\n"),
                HasSubstr("there is no \"spin\" in the gradient menu"));
    EXPECT_THAT(refusal(kShape + "change fill r like stroke r\n"), HasSubstr("has no gradient there"));
    EXPECT_THAT(refusal(kShape + "change fill r reverse twice\n"), HasSubstr("unexpected word"));
    EXPECT_THAT(refusal(kShape + "change fill r like fill r twice\n"), HasSubstr("unexpected word"));
    EXPECT_THAT(refusal(kShape + "add line l 0 0 9 9\nchange fill l reverse\n"),
                HasSubstr("takes no gradient there"));
    EXPECT_THAT(refusal(kWindow + "add rect r 1 1 2 2\nprint fit r\n"), HasSubstr("has no gradient"));
}

TEST(Play, AFitIsTheLineOrTheCirclesThatAreDrawn) {
    // From the left side to the right one, through the middle.
    const json line = printed(kShape + "print fit r\n");
    EXPECT_EQ(line["start"][0], 10);
    EXPECT_EQ(line["end"][0], 110);
    EXPECT_EQ(line["startRadius"], 0);
    const json circles = printed(
        kWindow + "add rect r 0 0 60 80\ngradient r 2 0 0.5 0.5 0.5 0.5 0:0,0,0 1:9,9,9\nprint fit r\n");
    EXPECT_EQ(circles["end"], json({30, 40}));
    EXPECT_EQ(circles["endRadius"], 50) << "to the corners";
}

TEST(Play, AFillIsNoneOneColorOrAnother) {
    EXPECT_EQ(printed(kShape + "print object r\n")["fillPattern"], "solid-black");
    EXPECT_EQ(printed(kWindow + "add rect r 1 1 2 2\nprint object r\n")["fillPattern"], "none");
    const tests::TemporaryFolder folder;
    tests::writeContent(folder / "in.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' "
                                           "height='9'><rect width='5' height='5' fill='red'/></svg>");
    const json object = printed("open \"" + (folder / "in.svg").string() + "\"\nprint object @0\n");
    EXPECT_EQ(object["fillPattern"], "other");
    EXPECT_EQ(object["object"], "@0");
    EXPECT_THAT(refusal("open \"\"\n"), HasSubstr("a file name is empty"));
}

TEST(Play, RemaindersOfOtherPeoplesGradientsArePrinted) {
    const tests::TemporaryFolder folder;
    tests::writeContent(folder / "in.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='90' "
                                           "height='90'><radialGradient id='g'><stop stop-color='red' "
                                           "stop-opacity='.5'/><stop offset='1'/></radialGradient><rect "
                                           "width='80' height='40' fill='url(#g)'/></svg>");
    const json gradient =
        printed("open \"" + (folder / "in.svg").string() + "\"\nprint object @0\n")["gradient"];
    EXPECT_EQ(gradient["opacity"][0], json({0.0, 0.5}));
    ASSERT_EQ(gradient["ellipse"].size(), 4U);
    // Twice as wide as high.
    EXPECT_NEAR(gradient["ellipse"][0].get<double>() / gradient["ellipse"][3].get<double>(), 2, 1e-6);
    const json circle = printed("open \"" + (folder / "in.svg").string() +
                                "\"\nchange fill @0 circular\nprint object @0\n")["gradient"];
    EXPECT_EQ(circle["opacity"], gradient["opacity"]);
    EXPECT_EQ(circle.value("ellipse", json()), json());
}

TEST(Play, StateIsPrintedBeforeAnythingHappened) {
    EXPECT_EQ(printed("print window\n"), json({{"window", nullptr}}));
    EXPECT_EQ(printed("print palette\n"), json({{"palette", json::array()}}));
    EXPECT_EQ(printed("print dialog\n")["dialog"], nullptr);
    EXPECT_EQ(printed("print defaults\n")["defaults"], json::array());
    EXPECT_EQ(printed("journal on\nprint journal\n")["journal"], json::array());
    EXPECT_EQ(printed("snap grid on\nsnap object off\nnew 9 9\nprint window\n")["window"]["gridSnap"], true);
    EXPECT_EQ(printed("filter rect line\nnew 9 9\nprint window\n")["window"]["pickFilter"],
              json({"rect", "line"}));
    EXPECT_EQ(printed("filter none\nnew 9 9\nprint window\n")["window"]["pickFilter"], json::array());
    EXPECT_THAT(refusal("snap grid sometimes\n"), HasSubstr("neither on nor off"));
}

TEST(Play, UndoAndRedoGoThroughTheSteps) {
    const std::string undone = kShape + "change fill r reverse\nundo\n";
    EXPECT_EQ(printed(undone + "print object r\n")["gradient"]["stops"][0], json({0.0, 0, 0, 0}));
    EXPECT_EQ(printed(undone + "print window\n")["window"]["redoLevels"], 1);
    EXPECT_EQ(printed(undone + "redo\nprint object r\n")["gradient"]["stops"][0],
              json({0.0, 65535, 65535, 65535}));
}

} // namespace
