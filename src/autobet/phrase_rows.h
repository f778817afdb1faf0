// The phrases of the language as they are written down: what is said, and the token words it
// becomes. A letter and a number make a token word; the letters are those of TokenCode and the
// numbers those of autobet/word_numbers.h. The vocabulary puts these rows, and those that go
// through the bets, stacks and places, into one table in its order.
#pragma once

#include <string_view>

namespace tessarel::phrases {

// What is said, and the words it becomes. These get one blank on each side, but a text that begins
// with a blank stands as it is.
struct PhraseRow {
  std::string_view From, To;
};

// clang-format off
inline constexpr PhraseRow Punctuation[] = {
    {"(", "L020"}, {"[", "L020"}, {"{", "L020"}, {")", "L021"}, {"]", "L021"}, {"}", "L021"},
    {"<>", "L051"}, {"<=", "L054"}, {"=<", "L054"}, {">=", "L055"}, {"=>", "L055"}, {"=", "L050"},
    {"<", "L052"}, {">", "L053"}, {"^", "L060"}, {"*", "L061"}, {"/", "L062"}, {"\\", "L063"},
    {" mod ", "L064"}, {"+", "L065"}, {"-", "L066"}, {"%", "L061 .01"}, {"&", "L074"},
    {",", "L075"}, {";", "L075"}, {":", "L100"},
};

// Forms of words that the rows below count on.
inline constexpr PhraseRow WordForms[] = {
    {" hour", " hr"}, {" average ", "avg"}, {" number ", "#"}, {" combinations ", "combos"},
    {" combination ", "combo"}, {" autorolling ", "autoroll"},
};

inline constexpr PhraseRow AutomationWords[] = {
    {" stop autoroll L062 hyperdrive ", "A115"}, {" autohandle winning bets ", "V670"},
    {" autohandle losing bets ", "V671"}, {" autotake full odds ", "V700"},
    {" autolay full odds ", "V701"}, {" autodown place bets ", "V702"},
    {" autopass the dice ", "V703"}, {" pass the dice ", "A118"},
};

inline constexpr PhraseRow HandRecords[] = {
    {" most rolls in a hand ", "V1501"}, {" avg rolls per hand ", "V1502"},
    {" most comeout rolls in a hand ", "V1503"}, {" avg comeout rolls per hand ", "V1504"},
    {" most passes in a hand ", "V1505"}, {" avg passes per hand ", "V1506"},
    {" most misses in a hand ", "V1507"}, {" avg misses per hand ", "V1508"},
};

inline constexpr PhraseRow FileAndMessageWords[] = {
    {" open L062 append file for output ", "A220"}, {" open L062 clear file for output ", "A221"},
    {" output to file ", "A223"}, {" atm deposit ", "A225"}, {" deposit atm ", "A225"},
    {" atm withdraw ", "A226"}, {" withdraw atm ", "A226"}, {" show message ", "A210"},
    {" ask yes L062 no question ", "A211"}, {" yes L062 no question ", "A211"},
    {" answer ", "V5697"}, {" play sound ", "A212"},
};

inline constexpr PhraseRow DiceSourceWords[] = {
    {" playback dice roll file ", "A310"}, {" deactivate dice roll file ", "A119"},
    {" from roll ", "EX1"}, {" dice roll file end reached ", "V5005"},
    {" dice roll file next roll ", "V5006"}, {" dice roll file length ", "V5007"},
    {" activate probability file ", "A213"}, {" deactivate probability file ", "A114"},
    {" show steps ", "A116"}, {" seed rng with ", "A230"}, {" seed rng ", "A130"},
    {" seed ", "V5655"}, {" select rng ", "V5672 L050"}, {" rng ", "V5672"},
};

// Forms of words that the statistics below count on.
inline constexpr PhraseRow CountWordForms[] = {
    {" # of ", "#"}, {" probable ", "prob"}, {" rolled ", "rolls"}, {" rolls prob ", "prob"},
};

// "%" has become L061 .01, one hundredth times; a bracket makes a function of a variable.
inline constexpr PhraseRow RollStatistics[] = {
    {" L061 .01 of prob skew ", "V4509"}, {" L061 .01 prob skew ", "V4509"},
    {" V4509 L020 ", "F033 L020"}, {" L061 .01 of prob true ", "V4506"},
    {" L061 .01 prob true ", "V4506"}, {" V4506 L020 ", "F030 L020"},
    {" L061 .01 of prob ", "V4501"}, {" L061 .01 prob ", "V4501"}, {" V4501 L020 ", "F025 L020"},
    {" L061 .01 of rolls ", "V4503"}, {" L061 .01 rolls ", "V4503"}, {" V4503 L020 ", "F027 L020"},
    {" # prob skew ", "V4508"}, {" V4508 L020 ", "F032 L020"}, {" # prob true ", "V4507"},
    {" V4507 L020 ", "F031 L020"}, {" # prob ", "V4502"}, {" V4502 L020 ", "F026 L020"},
    {" # rolls since last", "V4505"}, {" # rolls since ", "V4505"}, {" V4505 L020 ", "F029 L020"},
    {" # rolls ", "V4504"}, {" V4504 L020 ", "F028 L020"}, {" chisquare ", "V4510"},
    {" V4510 L020 ", "F034 L020"}, {" pvalue ", "V4511"}, {" V4511 L020 ", "F137 L020"},
    {" degrees of freedom ", "V4512"},
};

inline constexpr PhraseRow TableStateWords[] = {
    {" rolls per hr ", "V5603"}, {" next roll is a comeout roll ", "V5704"},
    {" next roll is not a comeout roll ", "V5705"}, {" last roll was a comeout roll ", "V5706"},
    {" last roll was not a comeout roll ", "V5707"}, {" minimum bet ", "V5610"},
    {" maximum bet ", "V5611"},
};

inline constexpr PhraseRow ComeOutStatistics[] = {
    {" # comeout rolls ", "V2600"}, {" V2600 L020 ", "F040 L020"},
    {" L061 .01 of comeout rolls ", "V2601"}, {" L061 .01 comeout rolls ", "V2601"},
    {" V2601 L020 ", "F041 L020"}, {" # passes ", "V2602"}, {" V2602 L020 ", "F042 L020"},
    {" L061 .01 of passes ", "V2603"}, {" L061 .01 passes ", "V2603"},
    {" V2603 L020 ", "F043 L020"}, {" # misses ", "V2604"}, {" V2604 L020 ", "F044 L020"},
    {" L061 .01 of misses ", "V2605"}, {" L061 .01 misses ", "V2605"},
    {" V2605 L020 ", "F045 L020"},
};

inline constexpr PhraseRow ShooterAndPointWords[] = {
    {" shooter passes ", "V5300"}, {" shooter misses ", "V5301"}, {" comeout roll ", "V5704"},
    {" point is decided against or for ", "V5500 L050 0 L071 V5502 L050"},
    {" point is decided for or against ", "V5500 L050 0 L071 V5502 L050"},
    {" point is decided against ", "V5500 L050 0 L071 V5510 L050 7 L071 V5502 L050"},
    {" point is decided for ", "V5500 L050 0 L071 V5510 L051 7 L071 V5502 L050"},
    {" point is decided ", "V5709"}, {" point is not established on ", "V5500 L051"},
    {" point is established on ", "V5500 L050"}, {" point is not established ", "V5711"},
    {" point is established ", "V5710"}, {" # hands completed ", "V2604 Y15"},
    {" # hands ", "V1500"}, {" # seven outs ", "V2604 Y15"}, {" # points ", "V4606"},
    {" V4606 L020 ", "F046 L020"}, {" L061 .01 of points ", "V4607"},
    {" L061 .01 points ", "V4607"}, {" V4607 L020 ", "F047 L020"}, {" does not exist ", "L050 0"},
    {" exists ", "L051 0"}, {" exist ", "L051 0"}, {" shooters last point ", "V5501"},
    {" last point ", "V5501"}, {" shooters point ", "V5500"}, {" point ", "V5500"},
    {" seven out ", "V5708"}, {" sevenout ", "V5708"}, {" dice faces ", "V5511"},
    {" dice combination ", "dice combo"}, {" dice combo ", "V5511"}, {" dice total ", "V5510"},
};

inline constexpr PhraseRow BankrollWords[] = {
    {" avg bankroll ", "F022"}, {" last available bankroll ", "V655"},
    {" available bankroll ", "V651"}, {" high bankroll ", "V1302"}, {" low bankroll ", "V1303"},
    {" beginning bankroll ", "V1300"}, {" bankroll ", "V1301"}, {" simulated hrs ", "V1200"},
    {" hrs ", "V1200"}, {" comp rate ", "V5691"}, {" comps ", "V1100"},
};

inline constexpr PhraseRow Players[] = {
    {" player name ", "F850"}, {" player ", "F050"}, {" new shooter ", "V5002"},
    {" original shooter ", "P12"}, {" last shooter ", "P11"}, {" shooter ", "P10"},
    {" autobettor ", "P14"}, {" bettor ", "P13"},
};

// "checkstack" in all its forms becomes " cs" or, for its name, " csn", ready for a number.
inline constexpr PhraseRow StackWordForms[] = {
    {" checkstack", " cs"}, {" cs name", " csn"}, {" csname", " csn"}, {" name cs", " csn"},
    {" css ", "V980"}, {" csns ", "V990"}, {" cs#", " cs"}, {" csn#", " csn"},
};

inline constexpr PhraseRow SessionCommands[] = {
    {" initializing script ", "V5000"}, {" beginning new session ", "V5001"},
    {" beginning new hand ", "V5002"}, {" start new session L020 preserve V980 L021 ", "A101"},
    {" start new session L020 preserve dice roll file L021 ", "A102"},
    {" start new session L020 preserve V980 L075 dice roll file L021 ", "A103"},
    {" start new session L020 preserve dice roll file L075 V980 L021 ", "A103"},
    {" start new session ", "A100"},
};

inline constexpr PhraseRow BetCommands[] = {
    {" buy the place bet on", "A450"}, {" call off ", "A451"}, {" call on ", "A452"},
    {" remove on L062 off button from ", "A453"}, {" remove on L062 off button ", "A453"},
    {" swap ", "A300"},
};

inline constexpr PhraseRow OneNumberBets[] = {
    {" passlineodds ", "V044"}, {" passline ", "V043"}, {" dontpassodds ", "V047"},
    {" dontpass ", "V046"}, {" field ", "V049"}, {" big bets ", "V4070"}, {" big6 ", "V050"},
    {" big8 ", "V051"}, {" big ", "F008"}, {" hardway bets ", "V4071"}, {" hard bets ", "V4071"},
    {" hard4 ", "V052"}, {" hard6 ", "V053"}, {" hard8 ", "V054"}, {" hard10 ", "V055"},
    {" hard ", "F009"}, {" two ", "V056"}, {" three ", "V057"}, {" seven ", "V058"},
    {" eleven ", "V059"}, {" twelve ", "V060"}, {" craps ", "V061"}, {" cande ", "V062"},
    {" world ", "V064"}, {" whirl ", "V064"}, {" horn ", "V063"}, {" under7 ", "V066"},
    {" over7 ", "V065"}, {" hop bets ", "V4072"},
};

inline constexpr PhraseRow LastBets[] = {
    {" hop ", "F010"}, {" allsmall ", "V084"}, {" makeall ", "V086"}, {" alltall ", "V085"},
    {" 4rollsno7 ", "V087"}, {" point7 ", "V088"}, {" 7point7 ", "V089"}, {" midway ", "V090"},
    {" sharpshooter ", "V091"}, {" ridetheline ", "V092"}, {" fire ", "V093"},
};

inline constexpr PhraseRow Qualifiers[] = {
    {" bets ", "V4100"}, {" current hand ", "H1"}, {" last hand ", "H2"}, {" all hands ", "H3"},
    {" current session ", "H3"}, {" last session ", "H4"}, {" all sessions ", "H5"},
    {" tendered ", "X0"}, {" wagered ", "X1"}, {" wagers ", "X1"}, {" wager ", "X1"},
    {" resolutions ", "X10"}, {" resolved ", "X10"}, {" resolves ", "X10"}, {" resolve ", "X10"},
    {" decided ", "X10"}, {" decisions ", "X10"}, {" decision ", "X10"}, {" wins ", "X2"},
    {" win ", "X2"}, {" has won ", "X2"}, {" won ", "X2"}, {" losses ", "X3"}, {" loss ", "X3"},
    {" loses ", "X3"}, {" lose ", "X3"}, {" has lost ", "X3"}, {" lost ", "X3"}, {" bar ", "V5630"},
    {" net L061 .01 ", "X5"}, {" net ", "X4"}, {" established ", "X6"}, {" passed ", "X7"},
    {" missed ", "X8"}, {" 11 basic numbers ", "X30"}, {" 21 combos ", "X31"},
    {" 36 combos ", "X32"}, {" die1 faces ", "X33"}, {" die2 faces ", "X34"},
    {" current # ", "Y33"}, {" current# ", "Y33"}, {" current $ ", "Y34"}, {" current$ ", "Y34"},
    {" current ", "Y34"}, {" prior roll # ", "Y35"}, {" prior roll# ", "Y35"},
    {" prior roll $ ", "Y36"}, {" prior roll$ ", "Y36"}, {" prior roll ", "Y36"},
    {" prior ", "Y36"}, {" total # ", "Y21"}, {" total# ", "Y21"}, {" total $ ", "Y22"},
    {" total$ ", "Y22"}, {" total ", "Y0"}, {" naturals ", "Y14"}, {" natural ", "Y14"},
    {" points ", "Y15"}, {" high $ ", "Y23"}, {" high$ ", "Y23"}, {" high ", "Y23"},
    {" low $ ", "Y24"}, {" low$ ", "Y24"}, {" low ", "Y24"}, {" avg # L062 hr ", "Y30"},
    {" avg# L062 hr ", "Y30"}, {" avg $ L062 hr ", "Y31"}, {" avg$ L062 hr ", "Y31"},
    {" avg L062 hr ", "Y31"}, {" avg $ ", "Y25"}, {" avg$ ", "Y25"}, {" last roll # ", "Y28"},
    {" last roll# ", "Y28"}, {" last roll $ ", "Y29"}, {" last roll$ ", "Y29"},
    {" last roll ", "Y29"}, {" last $ ", "Y26"}, {" last$ ", "Y26"}, {" last ", "Y26"},
    {" expctd value ", "Y32"}, {" expected value ", "Y32"}, {" working ", "Y37"},
    {" called on ", "Y38"}, {" called off ", "Y39"}, {" vig ", "Y40"},
};

// The third face of die two counts as its fifth: scripts in use rely on what the phrase means.
inline constexpr PhraseRow DieFaces[] = {
    {" die1 face1 ", "X33 1"}, {" die1 face2 ", "X33 2"}, {" die1 face3 ", "X33 3"},
    {" die1 face4 ", "X33 4"}, {" die1 face5 ", "X33 5"}, {" die1 face6 ", "X33 6"},
    {" die2 face1 ", "X34 1"}, {" die2 face2 ", "X34 2"}, {" die2 face3 ", "X34 5"},
    {" die2 face4 ", "X34 4"}, {" die2 face5 ", "X34 5"}, {" die2 face6 ", "X34 6"},
    {" die1 ", "V5512"}, {" die2 ", "V5513"}, {" die ", "F190"},
};

// " two " never comes this far: the number word always is the bet.
inline constexpr PhraseRow SmallWords[] = {
    {" all rolls ", "0"}, {" one ", "1"}, {" once ", "1"}, {" two ", "2"}, {" twice ", "2"},
    {" date L062 time ", "V5693"}, {" date$ ", "S-01"}, {" time$ ", "S-02"}, {" timer ", "V5696"},
    {" input$ ", "F825"}, {" input ", "F125"},
};

inline constexpr PhraseRow ListFunctions[] = {
    {" greatest", " highest"}, {" largest", " highest"}, {" highest$ ", "F132"},
    {" highest ", "F126"}, {" least", " lowest"}, {" smallest", " lowest"}, {" lowest$ ", "F133"},
    {" lowest ", "F127"}, {" avg ", "F128"}, {" mean ", "F128"}, {" standard deviation ", "F129"},
    {" stddev ", "F129"}, {" sum ", "F130"}, {" count ", "F131"}, {" length ", "F118"},
    {" len ", "F118"}, {" round up to the nearest ", "A489"},
    {" round down to the nearest ", "A488"}, {" round to the nearest ", "A487"},
    {" round ", "F139"},
};

inline constexpr PhraseRow Comparisons[] = {
    {" are greater than or equal to ", "L055"}, {" is greater than or equal to ", "L055"},
    {" greater than or equal to ", "L055"}, {" are not less than ", "L055"},
    {" is not less than ", "L055"}, {" not less than ", "L055"},
    {" are less than or equal to ", "L054"}, {" is less than or equal to ", "L054"},
    {" less than or equal to ", "L054"}, {" are not greater than ", "L054"},
    {" is not greater than ", "L054"}, {" not greater than ", "L054"},
    {" are greater than ", "L053"}, {" is greater than ", "L053"}, {" greater than ", "L053"},
    {" are more than ", "L053"}, {" is more than ", "L053"}, {" more than ", "L053"},
    {" are less than ", "L052"}, {" is less than ", "L052"}, {" less than ", "L052"},
    {" are not equal to ", "L051"}, {" is not equal to ", "L051"}, {" not equal to ", "L051"},
    {" does not equal ", "L051"}, {" doesnt equal ", "L051"}, {" are equal to ", "L050"},
    {" is equal to ", "L050"}, {" equal to ", "L050"}, {" equals ", "L050"}, {" equal ", "L050"},
};

inline constexpr PhraseRow ControlWords[] = {
    {" endif ", "L012"}, {" if ", "L001"}, {" then ", "L009"}, {" elseif ", "L011"},
    {" else ", "L010"}, {" goto ", "L014"}, {" go to ", "L014"}, {" gosub ", "L015"},
    {" return ", "L013"},
};

// Behind every longer phrase of comparison.
inline constexpr PhraseRow VerbForms[] = {
    {" is not ", "L051"}, {" isnt ", "L051"}, {" are not ", "L051"}, {" arent ", "L051"},
    {" was not ", "L051"}, {" wasnt ", "L051"}, {" were not ", "L051"}, {" werent ", "L051"},
    {" have not ", "L051"}, {" havent ", "L051"}, {" has not ", "L051"}, {" hasnt ", "L051"},
    {" were ", "L050"}, {" was ", "L050"}, {" are ", "L050"}, {" have ", "L050"}, {" has ", "L050"},
    {" is ", "L050"}, {" as ", "L050"}, {" on ", "L057"}, {" to ", "L057"}, {" thru ", "L058"},
    {" from ", "L059"},
};

inline constexpr PhraseRow ArithmeticAndTextFunctions[] = {
    {" sqr ", "F100"}, {" int ", "F101"}, {" abs ", "F102"}, {" asc ", "F104"}, {" rnd ", "V5698"},
    {" right$ ", "F802"}, {" left$ ", "F801"}, {" mid$ ", "F805"}, {" removeleft$ ", "F803"},
    {" removeright$ ", "F804"}, {" removemid$ ", "F806"}, {" insert$ ", "F809"},
    {" instr ", "F203"}, {" val ", "F117"}, {" str$ ", "F810"}, {" chr$ ", "F811"},
    {" space$ ", "F812"}, {" cr ", "F811 L020 13 L021 L074 F811 L020 10 L021"},
    {" newline ", "F811 L020 13 L021 L074 F811 L020 10 L021"},
    {" new line ", "F811 L020 13 L021 L074 F811 L020 10 L021"}, {" tab ", "F811 L020 9 L021"},
};

inline constexpr PhraseRow BetArithmetic[] = {
    {" bet ", "A481"}, {" multiply by ", "A482"}, {" multiply ", "A482"}, {" divide by ", "A483"},
    {" divide ", "A483"}, {" add ", "A484"}, {" subtract ", "A485"}, {" clear ", "A460"},
    {" remove ", "A460"}, {" take down ", "A460"}, {" takedown ", "A460"},
};

// The last two rows give a question without a text the empty text.
inline constexpr PhraseRow LogicAndLoopWords[] = {
    {" not ", "L070"}, {" and ", "L071"}, {" xor ", "L073"}, {" or ", "L072"}, {" EX1 ", "S-15"},
    {" true ", "-1"}, {" false ", "0"}, {" yes ", "6"}, {" no ", "7"}, {" of ", "L061"},
    {" exitdo ", "L018"}, {" do ", "L016"}, {" loop ", "L017"}, {" any ", "I002"},
    {" all ", "I003"}, {" F125 L020 L021 ", "F125 L020 S000 L021"},
    {" F825 L020 L021 ", "F825 L020 S000 L021"},
};

// clang-format on

}  // namespace tessarel::phrases
