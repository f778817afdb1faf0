#pragma once
namespace tessarel { double RollRate(); }
