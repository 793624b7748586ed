// The window as assistive technology finds it: names, roles, values and actions, through the desktop's own
// bus.
#include "tests/desktop/DesktopTest.h"
#include "tests/support/TemporaryFolder.h"

#include <atspi/atspi.h>
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>

namespace desktop {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Node = std::shared_ptr<AtspiAccessible>;

Node owned(AtspiAccessible* node) {
    return node ? Node(node, Unref()) : Node();
}

std::string taken(char* text) {
    std::string copy = text ? text : "";
    g_free(text);
    return copy;
}

std::string nameOf(const Node& node) {
    return taken(atspi_accessible_get_name(node.get(), nullptr));
}

std::string descriptionOf(const Node& node) {
    return taken(atspi_accessible_get_description(node.get(), nullptr));
}

bool has(const Node& node, AtspiStateType state) {
    AtspiStateSet* states = atspi_accessible_get_state_set(node.get());
    const bool is = states && atspi_state_set_contains(states, state) != FALSE;
    if (states)
        g_object_unref(states);
    return is;
}

std::vector<Node> childrenOf(const Node& node) {
    std::vector<Node> children;
    const int count = atspi_accessible_get_child_count(node.get(), nullptr);
    for (int i = 0; i < count; ++i)
        if (Node child = owned(atspi_accessible_get_child_at_index(node.get(), i, nullptr)))
            children.push_back(std::move(child));
    return children;
}

// All below the node that have that role, in the order of the tree.
std::vector<Node> allOf(const Node& node, AtspiRole role) {
    std::vector<Node> found;
    for (const Node& child : childrenOf(node)) {
        if (atspi_accessible_get_role(child.get(), nullptr) == role)
            found.push_back(child);
        for (const Node& deeper : allOf(child, role))
            found.push_back(deeper);
    }
    return found;
}

std::vector<std::string> namesOf(const std::vector<Node>& nodes) {
    std::vector<std::string> names;
    for (const Node& node : nodes)
        names.push_back(nameOf(node));
    return names;
}

// NaN for what has no value.
double valueOf(const Node& node) {
    const std::shared_ptr<AtspiValue> value(atspi_accessible_get_value_iface(node.get()), [](AtspiValue* it) {
        if (it)
            g_object_unref(it);
    });
    return value ? atspi_value_get_current_value(value.get(), nullptr) : std::nan("");
}

void setValue(const Node& node, double to) {
    AtspiValue* const value = atspi_accessible_get_value_iface(node.get());
    ASSERT_NE(value, nullptr);
    EXPECT_NE(atspi_value_set_current_value(value, to, nullptr), FALSE);
    g_object_unref(value);
}

// Does the action of that name; false if there is none.
bool act(const Node& node, const std::string& name) {
    AtspiAction* const actions = atspi_accessible_get_action_iface(node.get());
    if (!actions)
        return false;
    bool done = false;
    const int count = atspi_action_get_n_actions(actions, nullptr);
    for (int i = 0; i < count && !done; ++i)
        if (taken(atspi_action_get_action_name(actions, i, nullptr)) == name)
            done = atspi_action_do_action(actions, i, nullptr) != FALSE;
    g_object_unref(actions);
    return done;
}

// A session of its own: the bus of the desktop, and the one of assistive technology, which the first one
// starts when it is asked for. The library finds them once in a process.
class Session {
  public:
    explicit Session(std::map<std::string, std::string> variables) : variables_(std::move(variables)) {
        const std::string address = "unix:path=" + (folder_.path() / "bus").string();
        variables_["DBUS_SESSION_BUS_ADDRESS"] = address;
        variables_["XDG_RUNTIME_DIR"] = folder_.path();
        variables_["HOME"] = folder_.path();
        bus_ = std::make_unique<Process>(std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                                                                  "--nopidfile", "--address=" + address},
                                         variables_, folder_.path() / "bus.log");
    }
    bool isListening() const { return fs::exists(folder_.path() / "bus"); }
    // Makes it the session of this process, whose library then finds the bus of assistive technology; false
    // if there is none.
    bool enter() const {
        for (const char* name : {"DISPLAY", "HOME", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"})
            setenv(name, variables_.at(name).c_str(), 1);
        return atspi_init() <= 1;
    }
    const std::map<std::string, std::string>& variables() const { return variables_; }

  private:
    tests::TemporaryFolder folder_;
    std::map<std::string, std::string> variables_;
    std::unique_ptr<Process> bus_;
};

class AccessTest : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        if (!session_) {
            session_ = std::make_unique<Session>(environment());
            ASSERT_TRUE(eventually([] { return session_->isListening(); }))
                << "the session's bus does not start";
            ASSERT_TRUE(session_->enter()) << "the bus of assistive technology does not start";
        }
        std::map<std::string, std::string> changes{{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}};
        for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"})
            changes[name] = session_->variables().at(name);
        startWithDrawing(changes);
        ASSERT_TRUE(eventually([&] { return findProgram(); })) << "the program is not on the bus";
    }
    void TearDown() override {
        tree_.reset();
        DesktopTest::TearDown();
    }
    static void TearDownTestSuite() { session_.reset(); }

    bool findProgram() {
        const Node desktop = owned(atspi_get_desktop(0));
        if (!desktop)
            return false;
        // What the program shows changes behind the back of a cache that nobody tells.
        atspi_accessible_set_cache_mask(desktop.get(), ATSPI_CACHE_NONE);
        // The program of the test before may still be leaving.
        for (const Node& each : childrenOf(desktop))
            if (atspi_accessible_get_process_id(each.get(), nullptr) == static_cast<guint>(program().id()))
                tree_ = each;
        return tree_ != nullptr;
    }

    std::vector<Node> all(AtspiRole role) { return allOf(tree_, role); }
    // Waits for the only one of that role and name.
    Node waitFor(AtspiRole role, const std::string& name) {
        Node found;
        EXPECT_TRUE(eventually([&] {
            for (const Node& node : all(role))
                if (nameOf(node) == name)
                    found = node;
            return found != nullptr;
        })) << name
            << " among " << testing::PrintToString(namesOf(all(role)));
        return found;
    }
    bool stopsBecome(const std::vector<double>& positions) {
        return eventually([&] {
            std::vector<double> values;
            for (const Node& stop : all(ATSPI_ROLE_SLIDER))
                values.push_back(valueOf(stop));
            return values == positions;
        });
    }

  private:
    static std::unique_ptr<Session> session_;
    Node tree_;
};

std::unique_ptr<Session> AccessTest::session_;

TEST_F(AccessTest, TheShapesOfTheDrawingHaveNamesAndFillsAndAreSelected) {
    const Node canvas = waitFor(ATSPI_ROLE_CANVAS, "Drawing");
    ASSERT_TRUE(canvas);
    const std::vector<Node> shapes = childrenOf(canvas);
    EXPECT_THAT(namesOf(shapes), ElementsAre("Rectangle \u201cplain\u201d", "Ellipse \u201cmarker\u201d",
                                             "Rectangle \u201cgrad\u201d", "Ellipse \u201cround\u201d"));
    ASSERT_EQ(shapes.size(), 4u);
    EXPECT_EQ(atspi_accessible_get_role(shapes[0].get(), nullptr), ATSPI_ROLE_LIST_ITEM);
    EXPECT_EQ(descriptionOf(shapes[0]), "#12c84a");
    EXPECT_EQ(descriptionOf(shapes[2]), "linear gradient, 2 stops, 0\u00b0");
    EXPECT_EQ(descriptionOf(shapes[3]), "radial gradient, 2 stops");
    EXPECT_TRUE(act(shapes[2], "Press"));
    EXPECT_TRUE(eventually([&] { return has(shapes[2], ATSPI_STATE_SELECTED); }));
    EXPECT_FALSE(has(shapes[0], ATSPI_STATE_SELECTED));
    screen().key("shift+Tab");
    EXPECT_TRUE(eventually([&] { return has(shapes[1], ATSPI_STATE_FOCUSED); }));
}

TEST_F(AccessTest, TheEditorsItemsHaveNamesRolesAndValues) {
    openEditor(160, 290);
    const Node first = waitFor(ATSPI_ROLE_SLIDER, "Stop 1 of 2");
    const Node second = waitFor(ATSPI_ROLE_SLIDER, "Stop 2 of 2");
    ASSERT_TRUE(first && second);
    EXPECT_EQ(descriptionOf(first), "#203080");
    EXPECT_EQ(descriptionOf(second), "#f0d060");
    EXPECT_EQ(valueOf(first), 0);
    EXPECT_EQ(valueOf(second), 100);
    EXPECT_TRUE(has(first, ATSPI_STATE_SELECTED));
    const Node swatch = waitFor(ATSPI_ROLE_PUSH_BUTTON, "Color of the selected stop");
    EXPECT_EQ(descriptionOf(swatch), "#203080");
    EXPECT_EQ(valueOf(waitFor(ATSPI_ROLE_DIAL, "Preview")), 0);
    EXPECT_TRUE(has(waitFor(ATSPI_ROLE_RADIO_BUTTON, "Linear gradient"), ATSPI_STATE_CHECKED));
    EXPECT_FALSE(has(waitFor(ATSPI_ROLE_RADIO_BUTTON, "Radial gradient"), ATSPI_STATE_CHECKED));
    EXPECT_TRUE(waitFor(ATSPI_ROLE_COMBO_BOX, "Templates"));
    EXPECT_TRUE(waitFor(ATSPI_ROLE_TEXT, "Position of the selected stop in percent"));
    closeEditorWith("Escape");
}

TEST_F(AccessTest, StopsAreAddedChosenMovedAndRemovedAndTheGradientIsTurned) {
    openEditor(160, 290);
    const Node ramp = waitFor(ATSPI_ROLE_PANEL, "Color ramp");
    ASSERT_TRUE(ramp);
    EXPECT_TRUE(act(ramp, "Add"));
    EXPECT_TRUE(stopsBecome({0, 50, 100}));
    EXPECT_TRUE(act(waitFor(ATSPI_ROLE_SLIDER, "Stop 3 of 3"), "Press"));
    EXPECT_TRUE(
        eventually([&] { return has(waitFor(ATSPI_ROLE_SLIDER, "Stop 3 of 3"), ATSPI_STATE_SELECTED); }));
    setValue(waitFor(ATSPI_ROLE_SLIDER, "Stop 2 of 3"), 25);
    EXPECT_TRUE(stopsBecome({0, 25, 100}));
    EXPECT_TRUE(act(waitFor(ATSPI_ROLE_SLIDER, "Stop 2 of 3"), "Remove"));
    EXPECT_TRUE(stopsBecome({0, 100}));
    setValue(waitFor(ATSPI_ROLE_DIAL, "Preview"), 90);
    EXPECT_TRUE(
        eventually([&] { return std::abs(valueOf(waitFor(ATSPI_ROLE_DIAL, "Preview")) - 90) < 0.01; }));
    EXPECT_TRUE(act(waitFor(ATSPI_ROLE_PUSH_BUTTON, "Color of the selected stop"), "Press"));
    waitForDialog("Color of the gradient stop");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
