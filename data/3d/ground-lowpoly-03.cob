# water: made by art/build.sh, do not edit
Name water
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 122
8.5 0 0
-4 4 0
-3.2 4 0
-2.4 4 0
-1.6 4 0
-0.8 4 0
0 4 0
0.8 4 0
1.6 4 0
2.4 4 0
3.2 4 0
4 4 0
-4 3.2 0
-3.2 3.2 0
-2.4 3.2 0
-1.6 3.2 0
-0.8 3.2 0
0 3.2 0
0.8 3.2 0
1.6 3.2 0
2.4 3.2 0
3.2 3.2 0
4 3.2 0
-4 2.4 0
-3.2 2.4 0
-2.4 2.4 0
-1.6 2.4 0
-0.8 2.4 0
0 2.4 0
0.8 2.4 0
1.6 2.4 0
2.4 2.4 0
3.2 2.4 0
4 2.4 0
-4 1.6 0
-3.2 1.6 0
-2.4 1.6 0
-1.6 1.6 0
-0.8 1.6 0
0 1.6 0
0.8 1.6 0
1.6 1.6 0
2.4 1.6 0
3.2 1.6 0
4 1.6 0
-4 0.8 0
-3.2 0.8 0
-2.4 0.8 0
-1.6 0.8 0
-0.8 0.8 0
0 0.8 0
0.8 0.8 0
1.6 0.8 0
2.4 0.8 0
3.2 0.8 0
4 0.8 0
-4 0 0
-3.2 0 0
-2.4 0 0
-1.6 0 0
-0.8 0 0
0 0 0
0.8 0 0
1.6 0 0
2.4 0 0
3.2 0 0
4 0 0
-4 -0.8 0
-3.2 -0.8 0
-2.4 -0.8 0
-1.6 -0.8 0
-0.8 -0.8 0
0 -0.8 0
0.8 -0.8 0
1.6 -0.8 0
2.4 -0.8 0
3.2 -0.8 0
4 -0.8 0
-4 -1.6 0
-3.2 -1.6 0
-2.4 -1.6 0
-1.6 -1.6 0
-0.8 -1.6 0
0 -1.6 0
0.8 -1.6 0
1.6 -1.6 0
2.4 -1.6 0
3.2 -1.6 0
4 -1.6 0
-4 -2.4 0
-3.2 -2.4 0
-2.4 -2.4 0
-1.6 -2.4 0
-0.8 -2.4 0
0 -2.4 0
0.8 -2.4 0
1.6 -2.4 0
2.4 -2.4 0
3.2 -2.4 0
4 -2.4 0
-4 -3.2 0
-3.2 -3.2 0
-2.4 -3.2 0
-1.6 -3.2 0
-0.8 -3.2 0
0 -3.2 0
0.8 -3.2 0
1.6 -3.2 0
2.4 -3.2 0
3.2 -3.2 0
4 -3.2 0
-4 -4 0
-3.2 -4 0
-2.4 -4 0
-1.6 -4 0
-0.8 -4 0
0 -4 0
0.8 -4 0
1.6 -4 0
2.4 -4 0
3.2 -4 0
4 -4 0
Texture Vertices 121
0 1
0.1 1
0.1 0.9
0 0.9
0 0.8
0.1 0.8
0.1 0.7
0 0.7
0 0.6
0.1 0.6
0.1 0.5
0 0.5
0 0.4
0.1 0.4
0.1 0.3
0 0.3
0 0.2
0.1 0.2
0.1 0.1
0 0.1
0 0
0.1 0
0.2 1
0.2 0.9
0.2 0.8
0.2 0.7
0.2 0.6
0.2 0.5
0.2 0.4
0.2 0.3
0.2 0.2
0.2 0.1
0.2 0
0.3 1
0.3 0.9
0.3 0.8
0.3 0.7
0.3 0.6
0.3 0.5
0.3 0.4
0.3 0.3
0.3 0.2
0.3 0.1
0.3 0
0.4 1
0.4 0.9
0.4 0.8
0.4 0.7
0.4 0.6
0.4 0.5
0.4 0.4
0.4 0.3
0.4 0.2
0.4 0.1
0.4 0
0.5 1
0.5 0.9
0.5 0.8
0.5 0.7
0.5 0.6
0.5 0.5
0.5 0.4
0.5 0.3
0.5 0.2
0.5 0.1
0.5 0
0.6 1
0.6 0.9
0.6 0.8
0.6 0.7
0.6 0.6
0.6 0.5
0.6 0.4
0.6 0.3
0.6 0.2
0.6 0.1
0.6 0
0.7 1
0.7 0.9
0.7 0.8
0.7 0.7
0.7 0.6
0.7 0.5
0.7 0.4
0.7 0.3
0.7 0.2
0.7 0.1
0.7 0
0.8 1
0.8 0.9
0.8 0.8
0.8 0.7
0.8 0.6
0.8 0.5
0.8 0.4
0.8 0.3
0.8 0.2
0.8 0.1
0.8 0
0.9 1
0.9 0.9
0.9 0.8
0.9 0.7
0.9 0.6
0.9 0.5
0.9 0.4
0.9 0.3
0.9 0.2
0.9 0.1
0.9 0
1 1
1 0.9
1 0.8
1 0.7
1 0.6
1 0.5
1 0.4
1 0.3
1 0.2
1 0.1
1 0
Faces 200
Face verts 3 flags 0 mat 0
<1,0> <13,2> <12,1>
Face verts 3 flags 0 mat 0
<1,0> <2,3> <13,2>
Face verts 3 flags 0 mat 0
<2,3> <3,4> <13,2>
Face verts 3 flags 0 mat 0
<13,2> <3,4> <14,5>
Face verts 3 flags 0 mat 0
<3,4> <15,6> <14,5>
Face verts 3 flags 0 mat 0
<3,4> <4,7> <15,6>
Face verts 3 flags 0 mat 0
<4,7> <5,8> <15,6>
Face verts 3 flags 0 mat 0
<15,6> <5,8> <16,9>
Face verts 3 flags 0 mat 0
<5,8> <17,10> <16,9>
Face verts 3 flags 0 mat 0
<5,8> <6,11> <17,10>
Face verts 3 flags 0 mat 0
<6,11> <7,12> <17,10>
Face verts 3 flags 0 mat 0
<17,10> <7,12> <18,13>
Face verts 3 flags 0 mat 0
<7,12> <19,14> <18,13>
Face verts 3 flags 0 mat 0
<7,12> <8,15> <19,14>
Face verts 3 flags 0 mat 0
<8,15> <9,16> <19,14>
Face verts 3 flags 0 mat 0
<19,14> <9,16> <20,17>
Face verts 3 flags 0 mat 0
<9,16> <21,18> <20,17>
Face verts 3 flags 0 mat 0
<9,16> <10,19> <21,18>
Face verts 3 flags 0 mat 0
<10,19> <11,20> <21,18>
Face verts 3 flags 0 mat 0
<21,18> <11,20> <22,21>
Face verts 3 flags 0 mat 0
<12,1> <13,2> <23,22>
Face verts 3 flags 0 mat 0
<23,22> <13,2> <24,23>
Face verts 3 flags 0 mat 0
<13,2> <25,24> <24,23>
Face verts 3 flags 0 mat 0
<13,2> <14,5> <25,24>
Face verts 3 flags 0 mat 0
<14,5> <15,6> <25,24>
Face verts 3 flags 0 mat 0
<25,24> <15,6> <26,25>
Face verts 3 flags 0 mat 0
<15,6> <27,26> <26,25>
Face verts 3 flags 0 mat 0
<15,6> <16,9> <27,26>
Face verts 3 flags 0 mat 0
<16,9> <17,10> <27,26>
Face verts 3 flags 0 mat 0
<27,26> <17,10> <28,27>
Face verts 3 flags 0 mat 0
<17,10> <29,28> <28,27>
Face verts 3 flags 0 mat 0
<17,10> <18,13> <29,28>
Face verts 3 flags 0 mat 0
<18,13> <19,14> <29,28>
Face verts 3 flags 0 mat 0
<29,28> <19,14> <30,29>
Face verts 3 flags 0 mat 0
<19,14> <31,30> <30,29>
Face verts 3 flags 0 mat 0
<19,14> <20,17> <31,30>
Face verts 3 flags 0 mat 0
<20,17> <21,18> <31,30>
Face verts 3 flags 0 mat 0
<31,30> <21,18> <32,31>
Face verts 3 flags 0 mat 0
<21,18> <33,32> <32,31>
Face verts 3 flags 0 mat 0
<21,18> <22,21> <33,32>
Face verts 3 flags 0 mat 0
<23,22> <35,34> <34,33>
Face verts 3 flags 0 mat 0
<23,22> <24,23> <35,34>
Face verts 3 flags 0 mat 0
<24,23> <25,24> <35,34>
Face verts 3 flags 0 mat 0
<35,34> <25,24> <36,35>
Face verts 3 flags 0 mat 0
<25,24> <37,36> <36,35>
Face verts 3 flags 0 mat 0
<25,24> <26,25> <37,36>
Face verts 3 flags 0 mat 0
<26,25> <27,26> <37,36>
Face verts 3 flags 0 mat 0
<37,36> <27,26> <38,37>
Face verts 3 flags 0 mat 0
<27,26> <39,38> <38,37>
Face verts 3 flags 0 mat 0
<27,26> <28,27> <39,38>
Face verts 3 flags 0 mat 0
<28,27> <29,28> <39,38>
Face verts 3 flags 0 mat 0
<39,38> <29,28> <40,39>
Face verts 3 flags 0 mat 0
<29,28> <41,40> <40,39>
Face verts 3 flags 0 mat 0
<29,28> <30,29> <41,40>
Face verts 3 flags 0 mat 0
<30,29> <31,30> <41,40>
Face verts 3 flags 0 mat 0
<41,40> <31,30> <42,41>
Face verts 3 flags 0 mat 0
<31,30> <43,42> <42,41>
Face verts 3 flags 0 mat 0
<31,30> <32,31> <43,42>
Face verts 3 flags 0 mat 0
<32,31> <33,32> <43,42>
Face verts 3 flags 0 mat 0
<43,42> <33,32> <44,43>
Face verts 3 flags 0 mat 0
<34,33> <35,34> <45,44>
Face verts 3 flags 0 mat 0
<45,44> <35,34> <46,45>
Face verts 3 flags 0 mat 0
<35,34> <47,46> <46,45>
Face verts 3 flags 0 mat 0
<35,34> <36,35> <47,46>
Face verts 3 flags 0 mat 0
<36,35> <37,36> <47,46>
Face verts 3 flags 0 mat 0
<47,46> <37,36> <48,47>
Face verts 3 flags 0 mat 0
<37,36> <49,48> <48,47>
Face verts 3 flags 0 mat 0
<37,36> <38,37> <49,48>
Face verts 3 flags 0 mat 0
<38,37> <39,38> <49,48>
Face verts 3 flags 0 mat 0
<49,48> <39,38> <50,49>
Face verts 3 flags 0 mat 0
<39,38> <51,50> <50,49>
Face verts 3 flags 0 mat 0
<39,38> <40,39> <51,50>
Face verts 3 flags 0 mat 0
<40,39> <41,40> <51,50>
Face verts 3 flags 0 mat 0
<51,50> <41,40> <52,51>
Face verts 3 flags 0 mat 0
<41,40> <53,52> <52,51>
Face verts 3 flags 0 mat 0
<41,40> <42,41> <53,52>
Face verts 3 flags 0 mat 0
<42,41> <43,42> <53,52>
Face verts 3 flags 0 mat 0
<53,52> <43,42> <54,53>
Face verts 3 flags 0 mat 0
<43,42> <55,54> <54,53>
Face verts 3 flags 0 mat 0
<43,42> <44,43> <55,54>
Face verts 3 flags 0 mat 0
<45,44> <57,56> <56,55>
Face verts 3 flags 0 mat 0
<45,44> <46,45> <57,56>
Face verts 3 flags 0 mat 0
<46,45> <47,46> <57,56>
Face verts 3 flags 0 mat 0
<57,56> <47,46> <58,57>
Face verts 3 flags 0 mat 0
<47,46> <59,58> <58,57>
Face verts 3 flags 0 mat 0
<47,46> <48,47> <59,58>
Face verts 3 flags 0 mat 0
<48,47> <49,48> <59,58>
Face verts 3 flags 0 mat 0
<59,58> <49,48> <60,59>
Face verts 3 flags 0 mat 0
<49,48> <61,60> <60,59>
Face verts 3 flags 0 mat 0
<49,48> <50,49> <61,60>
Face verts 3 flags 0 mat 0
<50,49> <51,50> <61,60>
Face verts 3 flags 0 mat 0
<61,60> <51,50> <62,61>
Face verts 3 flags 0 mat 0
<51,50> <63,62> <62,61>
Face verts 3 flags 0 mat 0
<51,50> <52,51> <63,62>
Face verts 3 flags 0 mat 0
<52,51> <53,52> <63,62>
Face verts 3 flags 0 mat 0
<63,62> <53,52> <64,63>
Face verts 3 flags 0 mat 0
<53,52> <65,64> <64,63>
Face verts 3 flags 0 mat 0
<53,52> <54,53> <65,64>
Face verts 3 flags 0 mat 0
<54,53> <55,54> <65,64>
Face verts 3 flags 0 mat 0
<65,64> <55,54> <66,65>
Face verts 3 flags 0 mat 0
<56,55> <57,56> <67,66>
Face verts 3 flags 0 mat 0
<67,66> <57,56> <68,67>
Face verts 3 flags 0 mat 0
<57,56> <69,68> <68,67>
Face verts 3 flags 0 mat 0
<57,56> <58,57> <69,68>
Face verts 3 flags 0 mat 0
<58,57> <59,58> <69,68>
Face verts 3 flags 0 mat 0
<69,68> <59,58> <70,69>
Face verts 3 flags 0 mat 0
<59,58> <71,70> <70,69>
Face verts 3 flags 0 mat 0
<59,58> <60,59> <71,70>
Face verts 3 flags 0 mat 0
<60,59> <61,60> <71,70>
Face verts 3 flags 0 mat 0
<71,70> <61,60> <72,71>
Face verts 3 flags 0 mat 0
<61,60> <73,72> <72,71>
Face verts 3 flags 0 mat 0
<61,60> <62,61> <73,72>
Face verts 3 flags 0 mat 0
<62,61> <63,62> <73,72>
Face verts 3 flags 0 mat 0
<73,72> <63,62> <74,73>
Face verts 3 flags 0 mat 0
<63,62> <75,74> <74,73>
Face verts 3 flags 0 mat 0
<63,62> <64,63> <75,74>
Face verts 3 flags 0 mat 0
<64,63> <65,64> <75,74>
Face verts 3 flags 0 mat 0
<75,74> <65,64> <76,75>
Face verts 3 flags 0 mat 0
<65,64> <77,76> <76,75>
Face verts 3 flags 0 mat 0
<65,64> <66,65> <77,76>
Face verts 3 flags 0 mat 0
<67,66> <79,78> <78,77>
Face verts 3 flags 0 mat 0
<67,66> <68,67> <79,78>
Face verts 3 flags 0 mat 0
<68,67> <69,68> <79,78>
Face verts 3 flags 0 mat 0
<79,78> <69,68> <80,79>
Face verts 3 flags 0 mat 0
<69,68> <81,80> <80,79>
Face verts 3 flags 0 mat 0
<69,68> <70,69> <81,80>
Face verts 3 flags 0 mat 0
<70,69> <71,70> <81,80>
Face verts 3 flags 0 mat 0
<81,80> <71,70> <82,81>
Face verts 3 flags 0 mat 0
<71,70> <83,82> <82,81>
Face verts 3 flags 0 mat 0
<71,70> <72,71> <83,82>
Face verts 3 flags 0 mat 0
<72,71> <73,72> <83,82>
Face verts 3 flags 0 mat 0
<83,82> <73,72> <84,83>
Face verts 3 flags 0 mat 0
<73,72> <85,84> <84,83>
Face verts 3 flags 0 mat 0
<73,72> <74,73> <85,84>
Face verts 3 flags 0 mat 0
<74,73> <75,74> <85,84>
Face verts 3 flags 0 mat 0
<85,84> <75,74> <86,85>
Face verts 3 flags 0 mat 0
<75,74> <87,86> <86,85>
Face verts 3 flags 0 mat 0
<75,74> <76,75> <87,86>
Face verts 3 flags 0 mat 0
<76,75> <77,76> <87,86>
Face verts 3 flags 0 mat 0
<87,86> <77,76> <88,87>
Face verts 3 flags 0 mat 0
<78,77> <79,78> <89,88>
Face verts 3 flags 0 mat 0
<89,88> <79,78> <90,89>
Face verts 3 flags 0 mat 0
<79,78> <91,90> <90,89>
Face verts 3 flags 0 mat 0
<79,78> <80,79> <91,90>
Face verts 3 flags 0 mat 0
<80,79> <81,80> <91,90>
Face verts 3 flags 0 mat 0
<91,90> <81,80> <92,91>
Face verts 3 flags 0 mat 0
<81,80> <93,92> <92,91>
Face verts 3 flags 0 mat 0
<81,80> <82,81> <93,92>
Face verts 3 flags 0 mat 0
<82,81> <83,82> <93,92>
Face verts 3 flags 0 mat 0
<93,92> <83,82> <94,93>
Face verts 3 flags 0 mat 0
<83,82> <95,94> <94,93>
Face verts 3 flags 0 mat 0
<83,82> <84,83> <95,94>
Face verts 3 flags 0 mat 0
<84,83> <85,84> <95,94>
Face verts 3 flags 0 mat 0
<95,94> <85,84> <96,95>
Face verts 3 flags 0 mat 0
<85,84> <97,96> <96,95>
Face verts 3 flags 0 mat 0
<85,84> <86,85> <97,96>
Face verts 3 flags 0 mat 0
<86,85> <87,86> <97,96>
Face verts 3 flags 0 mat 0
<97,96> <87,86> <98,97>
Face verts 3 flags 0 mat 0
<87,86> <99,98> <98,97>
Face verts 3 flags 0 mat 0
<87,86> <88,87> <99,98>
Face verts 3 flags 0 mat 0
<89,88> <101,100> <100,99>
Face verts 3 flags 0 mat 0
<89,88> <90,89> <101,100>
Face verts 3 flags 0 mat 0
<90,89> <91,90> <101,100>
Face verts 3 flags 0 mat 0
<101,100> <91,90> <102,101>
Face verts 3 flags 0 mat 0
<91,90> <103,102> <102,101>
Face verts 3 flags 0 mat 0
<91,90> <92,91> <103,102>
Face verts 3 flags 0 mat 0
<92,91> <93,92> <103,102>
Face verts 3 flags 0 mat 0
<103,102> <93,92> <104,103>
Face verts 3 flags 0 mat 0
<93,92> <105,104> <104,103>
Face verts 3 flags 0 mat 0
<93,92> <94,93> <105,104>
Face verts 3 flags 0 mat 0
<94,93> <95,94> <105,104>
Face verts 3 flags 0 mat 0
<105,104> <95,94> <106,105>
Face verts 3 flags 0 mat 0
<95,94> <107,106> <106,105>
Face verts 3 flags 0 mat 0
<95,94> <96,95> <107,106>
Face verts 3 flags 0 mat 0
<96,95> <97,96> <107,106>
Face verts 3 flags 0 mat 0
<107,106> <97,96> <108,107>
Face verts 3 flags 0 mat 0
<97,96> <109,108> <108,107>
Face verts 3 flags 0 mat 0
<97,96> <98,97> <109,108>
Face verts 3 flags 0 mat 0
<98,97> <99,98> <109,108>
Face verts 3 flags 0 mat 0
<109,108> <99,98> <110,109>
Face verts 3 flags 0 mat 0
<100,99> <101,100> <111,110>
Face verts 3 flags 0 mat 0
<111,110> <101,100> <112,111>
Face verts 3 flags 0 mat 0
<101,100> <113,112> <112,111>
Face verts 3 flags 0 mat 0
<101,100> <102,101> <113,112>
Face verts 3 flags 0 mat 0
<102,101> <103,102> <113,112>
Face verts 3 flags 0 mat 0
<113,112> <103,102> <114,113>
Face verts 3 flags 0 mat 0
<103,102> <115,114> <114,113>
Face verts 3 flags 0 mat 0
<103,102> <104,103> <115,114>
Face verts 3 flags 0 mat 0
<104,103> <105,104> <115,114>
Face verts 3 flags 0 mat 0
<115,114> <105,104> <116,115>
Face verts 3 flags 0 mat 0
<105,104> <117,116> <116,115>
Face verts 3 flags 0 mat 0
<105,104> <106,105> <117,116>
Face verts 3 flags 0 mat 0
<106,105> <107,106> <117,116>
Face verts 3 flags 0 mat 0
<117,116> <107,106> <118,117>
Face verts 3 flags 0 mat 0
<107,106> <119,118> <118,117>
Face verts 3 flags 0 mat 0
<107,106> <108,107> <119,118>
Face verts 3 flags 0 mat 0
<108,107> <109,108> <119,118>
Face verts 3 flags 0 mat 0
<119,118> <109,108> <120,119>
Face verts 3 flags 0 mat 0
<109,108> <121,120> <120,119>
Face verts 3 flags 0 mat 0
<109,108> <110,109> <121,120>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\sea.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
