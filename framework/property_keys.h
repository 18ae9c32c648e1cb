#pragma once

// The keys that the framework itself reads from a property set.

#include <cstdint>

using PropertyKey = std::uint32_t;

namespace property {

constexpr PropertyKey InitArgument = 101;
constexpr PropertyKey ExtraControlClasses = 1000;
constexpr PropertyKey Accelerators = 1001;
constexpr PropertyKey ClassBackground = 1004;
constexpr PropertyKey ClassName = 1011;
constexpr PropertyKey ClassStyle = 1012;
constexpr PropertyKey ClassExtraBytes = 1014;
constexpr PropertyKey ControlId = 1016;
constexpr PropertyKey ClassCursor = 1017;
constexpr PropertyKey HasRebar = 1021;
constexpr PropertyKey HasStatusBar = 1022;
constexpr PropertyKey RefuseEmpty = 1028;
constexpr PropertyKey ThumbTracking = 1030;
constexpr PropertyKey ExtendedStyle = 1032;
constexpr PropertyKey Height = 1046;
constexpr PropertyKey HorizontalMaximum = 1049;
constexpr PropertyKey HorizontalMinimum = 1050;
constexpr PropertyKey HorizontalPosition = 1051;
constexpr PropertyKey ClassIcon = 1052;
constexpr PropertyKey SmallIcon = 1053;
constexpr PropertyKey SecondStep = 1067;
constexpr PropertyKey MaximumEntries = 1075;
constexpr PropertyKey MenuBar = 1078;
constexpr PropertyKey ClassMenuName = 1079;
constexpr PropertyKey LineStep = 1093;
constexpr PropertyKey CreationParameter = 1095;
constexpr PropertyKey ClassIsRegistered = 1101;
constexpr PropertyKey FullScreenFlags = 1110;
constexpr PropertyKey Style = 1115;
constexpr PropertyKey DialogTemplate = 1117;
constexpr PropertyKey TabNotification = 1126;
constexpr PropertyKey VerticalMaximum = 1129;
constexpr PropertyKey VerticalMinimum = 1130;
constexpr PropertyKey VerticalPosition = 1131;
constexpr PropertyKey Width = 1135;
constexpr PropertyKey ViewIcon = 1136;  // the class gets it once the view stands
constexpr PropertyKey WindowExtraBytes = 1137;
constexpr PropertyKey WindowProcedure = 1138;
constexpr PropertyKey X = 1139;
constexpr PropertyKey Y = 1140;

}  // namespace property
