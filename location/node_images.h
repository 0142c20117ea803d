// Pictures of the nodes: cells of "pcDetail.bmp", counted from 1.
#pragma once

namespace pelorin::node_image {

inline constexpr int openFolder = 1;  // a selected folder
inline constexpr int folder = 3;
inline constexpr int controller = 14;
inline constexpr int dialUpLocation = 16;
inline constexpr int door = 17;
inline constexpr int input = 19;
inline constexpr int relay = 20;
inline constexpr int multiplexer = 21;
inline constexpr int reader = 27;
inline constexpr int networkController = 33;
inline constexpr int port = 34;
inline constexpr int camera = 44;
inline constexpr int recorder = 46;
inline constexpr int receiver = 66;
inline constexpr int account = 67;
inline constexpr int area = 68;
inline constexpr int point = 69;

inline constexpr int highest = point;

}  // namespace pelorin::node_image
