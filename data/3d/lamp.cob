# lamp: made by art/build.sh, do not edit
Name lamp
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 129
-0.23 -0.23 -0.2
0.23 -0.23 -0.2
0.184 -0.184 0.14
-0.184 -0.184 0.14
0.23 -0.23 -0.2
0.23 0.23 -0.2
0.184 0.184 0.14
0.184 -0.184 0.14
0.23 0.23 -0.2
-0.23 0.23 -0.2
-0.184 0.184 0.14
0.184 0.184 0.14
-0.23 0.23 -0.2
-0.23 -0.23 -0.2
-0.184 -0.184 0.14
-0.184 0.184 0.14
-0.184 -0.184 0.14
0.184 -0.184 0.14
0.184 0.184 0.14
-0.184 0.184 0.14
0 0.08 0.1
0.0693 0.04 0.1
0.0693 -0.04 0.1
0 -0.08 0.1
-0.0693 -0.04 0.1
-0.0693 0.04 0.1
0 0.06 1.5
0.052 0.03 1.5
0.052 -0.03 1.5
0 -0.06 1.5
-0.052 -0.03 1.5
-0.052 0.03 1.5
0.0001 0 1.12
0.17 0 1.2
0.22 0 1.38
0.15 0 1.58
0.0001 0 1.66
0.0001 0.0001 1.12
0.1202 0.1202 1.2
0.1556 0.1556 1.38
0.1061 0.1061 1.58
0.0001 0.0001 1.66
0 0.0001 1.12
0 0.17 1.2
0 0.22 1.38
0 0.15 1.58
0 0.0001 1.66
-0.0001 0.0001 1.12
-0.1202 0.1202 1.2
-0.1556 0.1556 1.38
-0.1061 0.1061 1.58
-0.0001 0.0001 1.66
-0.0001 0 1.12
-0.17 0 1.2
-0.22 0 1.38
-0.15 0 1.58
-0.0001 0 1.66
-0.0001 -0.0001 1.12
-0.1202 -0.1202 1.2
-0.1556 -0.1556 1.38
-0.1061 -0.1061 1.58
-0.0001 -0.0001 1.66
0 -0.0001 1.12
0 -0.17 1.2
0 -0.22 1.38
0 -0.15 1.58
0 -0.0001 1.66
0.0001 -0.0001 1.12
0.1202 -0.1202 1.2
0.1556 -0.1556 1.38
0.1061 -0.1061 1.58
0.0001 -0.0001 1.66
0.46 0 1.58
0.36 0 1.72
0.16 0 1.82
0.05 0 1.86
0.0001 0 2.04
0.3253 0.3253 1.58
0.2546 0.2546 1.72
0.1131 0.1131 1.82
0.0354 0.0354 1.86
0.0001 0.0001 2.04
0 0.46 1.58
0 0.36 1.72
0 0.16 1.82
0 0.05 1.86
0 0.0001 2.04
-0.3253 0.3253 1.58
-0.2546 0.2546 1.72
-0.1131 0.1131 1.82
-0.0354 0.0354 1.86
-0.0001 0.0001 2.04
-0.46 0 1.58
-0.36 0 1.72
-0.16 0 1.82
-0.05 0 1.86
-0.0001 0 2.04
-0.3253 -0.3253 1.58
-0.2546 -0.2546 1.72
-0.1131 -0.1131 1.82
-0.0354 -0.0354 1.86
-0.0001 -0.0001 2.04
0 -0.46 1.58
0 -0.36 1.72
0 -0.16 1.82
0 -0.05 1.86
0 -0.0001 2.04
0.3253 -0.3253 1.58
0.2546 -0.2546 1.72
0.1131 -0.1131 1.82
0.0354 -0.0354 1.86
0.0001 -0.0001 2.04
0.0001 0 1.74
0.46 0 1.57
0.0001 0.0001 1.74
0.3253 0.3253 1.57
0 0.0001 1.74
0 0.46 1.57
-0.0001 0.0001 1.74
-0.3253 0.3253 1.57
-0.0001 0 1.74
-0.46 0 1.57
-0.0001 -0.0001 1.74
-0.3253 -0.3253 1.57
0 -0.0001 1.74
0 -0.46 1.57
0.0001 -0.0001 1.74
0.3253 -0.3253 1.57
0 0 2.8968
Texture Vertices 125
0.1829 0.6509
0.1829 0.4343
0.3514 0.4626
0.3514 0.6359
0.0044 0.6621
0.0044 0.4343
0.174 0.4571
0.174 0.6393
0.414 0.7841
0.414 0.5794
0.584 0.599
0.584 0.7627
0.414 0.5706
0.414 0.3427
0.5839 0.3655
0.5839 0.5478
0.3578 0.6656
0.3578 0.8467
0.1829 0.8408
0.1829 0.6597
0.8592 0.693
0.8691 0.0044
0.8988 0.0044
0.8988 0.693
0.8504 0.0044
0.8455 0.6967
0.8108 0.0044
0.8157 0.6967
0.802 0.0059
0.802 0.6799
0.7728 0.6788
0.7631 0.0044
0.737 0.012
0.7532 0.6845
0.9956 0.0044
0.9906 0.6896
0.9609 0.6896
0.956 0.0044
0.9471 0.0044
0.9471 0.693
0.9076 0.0044
0.9175 0.693
0 0
0.0044 0.8321
0.0093 0.671
0.081 0.706
0.0772 0.8321
0.506 0.3339
0.414 0.2374
0.5571 0.2424
0.5162 0.1995
0.5702 0.1786
0.583 0.192
0.3773 0.5384
0.3946 0.5356
0.3946 0.6275
0.0899 0.845
0.0899 0.671
0.1646 0.8284
0.1646 0.6923
0.414 0.1009
0.5162 0.1388
0.5702 0.1597
0.6117 0.6708
0.5928 0.6708
0.6029 0.5794
0.603 0.5794
0.8108 0.8795
0.8108 0.7055
0.8856 0.722
0.8856 0.8582
0.506 0.0044
0.5571 0.0959
0.583 0.1463
0.6116 0.5348
0.5927 0.5348
0.6014 0.4434
0.646 0.9802
0.6348 0.819
0.7203 0.9451
0.7115 0.819
0.6362 0.0044
0.615 0.0959
0.601 0.1463
0.3603 0.4409
0.3772 0.4364
0.3946 0.5268
0.646 0.6579
0.7203 0.6929
0.7282 0.1009
0.6558 0.1388
0.6138 0.1597
0.3947 0.4343
0.3947 0.5268
0.6521 0.6491
0.6348 0.5159
0.7282 0.6109
0.7146 0.5066
0.7282 0.2374
0.6558 0.1995
0.6138 0.1786
0.6256 0.4346
0.611 0.4341
0.6255 0.3427
0.6256 0.3427
0.6521 0.3427
0.7282 0.3711
0.6362 0.3339
0.615 0.2424
0.601 0.192
0.5927 0.4293
0.0093 0.9932
0.081 0.9582
0.3603 0.5423
0.2306 0.2149
0.0044 0.1277
0.1218 0.0044
0.0044 0.3021
0.2306 0.215
0.1218 0.4255
0.2878 0.4255
0.2307 0.2149
0.4052 0.3021
0.4052 0.1277
0.2878 0.0044
Faces 166
Face verts 3 flags 0 mat 0
<0,0> <2,2> <1,1>
Face verts 3 flags 0 mat 0
<0,0> <3,3> <2,2>
Face verts 3 flags 0 mat 0
<4,4> <6,6> <5,5>
Face verts 3 flags 0 mat 0
<4,4> <7,7> <6,6>
Face verts 3 flags 0 mat 0
<8,8> <10,10> <9,9>
Face verts 3 flags 0 mat 0
<8,8> <11,11> <10,10>
Face verts 3 flags 0 mat 0
<12,12> <14,14> <13,13>
Face verts 3 flags 0 mat 0
<12,12> <15,15> <14,14>
Face verts 3 flags 0 mat 0
<16,16> <18,18> <17,17>
Face verts 3 flags 0 mat 0
<16,16> <19,19> <18,18>
Face verts 3 flags 0 mat 0
<20,20> <27,22> <26,21>
Face verts 3 flags 0 mat 0
<20,20> <21,23> <27,22>
Face verts 3 flags 0 mat 0
<21,24> <22,26> <27,25>
Face verts 3 flags 0 mat 0
<27,25> <22,26> <28,27>
Face verts 3 flags 0 mat 0
<22,28> <29,30> <28,29>
Face verts 3 flags 0 mat 0
<22,28> <23,31> <29,30>
Face verts 3 flags 0 mat 0
<23,31> <24,32> <29,30>
Face verts 3 flags 0 mat 0
<29,30> <24,32> <30,33>
Face verts 3 flags 0 mat 0
<24,34> <31,36> <30,35>
Face verts 3 flags 0 mat 0
<24,34> <25,37> <31,36>
Face verts 3 flags 0 mat 0
<25,38> <20,40> <31,39>
Face verts 3 flags 0 mat 0
<31,39> <20,40> <26,41>
Face verts 3 flags 0 mat 1
<32,42> <38,42> <37,42>
Face verts 3 flags 0 mat 1
<32,42> <33,42> <38,42>
Face verts 3 flags 0 mat 1
<33,42> <34,42> <38,42>
Face verts 3 flags 0 mat 1
<38,42> <34,42> <39,42>
Face verts 3 flags 0 mat 1
<34,42> <40,42> <39,42>
Face verts 3 flags 0 mat 1
<34,42> <35,42> <40,42>
Face verts 3 flags 0 mat 1
<35,42> <36,42> <40,42>
Face verts 3 flags 0 mat 1
<40,42> <36,42> <41,42>
Face verts 3 flags 0 mat 1
<37,42> <38,42> <42,42>
Face verts 3 flags 0 mat 1
<42,42> <38,42> <43,42>
Face verts 3 flags 0 mat 1
<38,42> <44,42> <43,42>
Face verts 3 flags 0 mat 1
<38,42> <39,42> <44,42>
Face verts 3 flags 0 mat 1
<39,42> <40,42> <44,42>
Face verts 3 flags 0 mat 1
<44,42> <40,42> <45,42>
Face verts 3 flags 0 mat 1
<40,42> <46,42> <45,42>
Face verts 3 flags 0 mat 1
<40,42> <41,42> <46,42>
Face verts 3 flags 0 mat 1
<42,42> <48,42> <47,42>
Face verts 3 flags 0 mat 1
<42,42> <43,42> <48,42>
Face verts 3 flags 0 mat 1
<43,42> <44,42> <48,42>
Face verts 3 flags 0 mat 1
<48,42> <44,42> <49,42>
Face verts 3 flags 0 mat 1
<44,42> <50,42> <49,42>
Face verts 3 flags 0 mat 1
<44,42> <45,42> <50,42>
Face verts 3 flags 0 mat 1
<45,42> <46,42> <50,42>
Face verts 3 flags 0 mat 1
<50,42> <46,42> <51,42>
Face verts 3 flags 0 mat 1
<47,42> <48,42> <52,42>
Face verts 3 flags 0 mat 1
<52,42> <48,42> <53,42>
Face verts 3 flags 0 mat 1
<48,42> <54,42> <53,42>
Face verts 3 flags 0 mat 1
<48,42> <49,42> <54,42>
Face verts 3 flags 0 mat 1
<49,42> <50,42> <54,42>
Face verts 3 flags 0 mat 1
<54,42> <50,42> <55,42>
Face verts 3 flags 0 mat 1
<50,42> <56,42> <55,42>
Face verts 3 flags 0 mat 1
<50,42> <51,42> <56,42>
Face verts 3 flags 0 mat 1
<52,42> <58,42> <57,42>
Face verts 3 flags 0 mat 1
<52,42> <53,42> <58,42>
Face verts 3 flags 0 mat 1
<53,42> <54,42> <58,42>
Face verts 3 flags 0 mat 1
<58,42> <54,42> <59,42>
Face verts 3 flags 0 mat 1
<54,42> <60,42> <59,42>
Face verts 3 flags 0 mat 1
<54,42> <55,42> <60,42>
Face verts 3 flags 0 mat 1
<55,42> <56,42> <60,42>
Face verts 3 flags 0 mat 1
<60,42> <56,42> <61,42>
Face verts 3 flags 0 mat 1
<57,42> <58,42> <62,42>
Face verts 3 flags 0 mat 1
<62,42> <58,42> <63,42>
Face verts 3 flags 0 mat 1
<58,42> <64,42> <63,42>
Face verts 3 flags 0 mat 1
<58,42> <59,42> <64,42>
Face verts 3 flags 0 mat 1
<59,42> <60,42> <64,42>
Face verts 3 flags 0 mat 1
<64,42> <60,42> <65,42>
Face verts 3 flags 0 mat 1
<60,42> <66,42> <65,42>
Face verts 3 flags 0 mat 1
<60,42> <61,42> <66,42>
Face verts 3 flags 0 mat 1
<62,42> <68,42> <67,42>
Face verts 3 flags 0 mat 1
<62,42> <63,42> <68,42>
Face verts 3 flags 0 mat 1
<63,42> <64,42> <68,42>
Face verts 3 flags 0 mat 1
<68,42> <64,42> <69,42>
Face verts 3 flags 0 mat 1
<64,42> <70,42> <69,42>
Face verts 3 flags 0 mat 1
<64,42> <65,42> <70,42>
Face verts 3 flags 0 mat 1
<65,42> <66,42> <70,42>
Face verts 3 flags 0 mat 1
<70,42> <66,42> <71,42>
Face verts 3 flags 0 mat 1
<67,42> <68,42> <32,42>
Face verts 3 flags 0 mat 1
<32,42> <68,42> <33,42>
Face verts 3 flags 0 mat 1
<68,42> <34,42> <33,42>
Face verts 3 flags 0 mat 1
<68,42> <69,42> <34,42>
Face verts 3 flags 0 mat 1
<69,42> <70,42> <34,42>
Face verts 3 flags 0 mat 1
<34,42> <70,42> <35,42>
Face verts 3 flags 0 mat 1
<70,42> <36,42> <35,42>
Face verts 3 flags 0 mat 1
<70,42> <71,42> <36,42>
Face verts 3 flags 0 mat 0
<72,43> <78,45> <77,44>
Face verts 3 flags 0 mat 0
<72,43> <73,46> <78,45>
Face verts 3 flags 0 mat 0
<73,47> <74,49> <78,48>
Face verts 3 flags 0 mat 0
<78,48> <74,49> <79,50>
Face verts 3 flags 0 mat 0
<74,49> <80,51> <79,50>
Face verts 3 flags 0 mat 0
<74,49> <75,52> <80,51>
Face verts 3 flags 0 mat 0
<75,53> <76,55> <80,54>
Face verts 3 flags 0 mat 0
<80,54> <76,55> <81,55>
Face verts 3 flags 0 mat 0
<77,56> <78,58> <82,57>
Face verts 3 flags 0 mat 0
<82,57> <78,58> <83,59>
Face verts 3 flags 0 mat 0
<78,48> <84,61> <83,60>
Face verts 3 flags 0 mat 0
<78,48> <79,50> <84,61>
Face verts 3 flags 0 mat 0
<79,50> <80,51> <84,61>
Face verts 3 flags 0 mat 0
<84,61> <80,51> <85,62>
Face verts 3 flags 0 mat 0
<80,63> <86,65> <85,64>
Face verts 3 flags 0 mat 0
<80,63> <81,66> <86,65>
Face verts 3 flags 0 mat 0
<82,67> <88,69> <87,68>
Face verts 3 flags 0 mat 0
<82,67> <83,70> <88,69>
Face verts 3 flags 0 mat 0
<83,60> <84,61> <88,71>
Face verts 3 flags 0 mat 0
<88,71> <84,61> <89,72>
Face verts 3 flags 0 mat 0
<84,61> <90,73> <89,72>
Face verts 3 flags 0 mat 0
<84,61> <85,62> <90,73>
Face verts 3 flags 0 mat 0
<85,74> <86,76> <90,75>
Face verts 3 flags 0 mat 0
<90,75> <86,76> <91,76>
Face verts 3 flags 0 mat 0
<87,77> <88,79> <92,78>
Face verts 3 flags 0 mat 0
<92,78> <88,79> <93,80>
Face verts 3 flags 0 mat 0
<88,71> <94,82> <93,81>
Face verts 3 flags 0 mat 0
<88,71> <89,72> <94,82>
Face verts 3 flags 0 mat 0
<89,72> <90,73> <94,82>
Face verts 3 flags 0 mat 0
<94,82> <90,73> <95,83>
Face verts 3 flags 0 mat 0
<90,84> <96,86> <95,85>
Face verts 3 flags 0 mat 0
<90,84> <91,86> <96,86>
Face verts 3 flags 0 mat 0
<92,78> <98,88> <97,87>
Face verts 3 flags 0 mat 0
<92,78> <93,80> <98,88>
Face verts 3 flags 0 mat 0
<93,81> <94,82> <98,89>
Face verts 3 flags 0 mat 0
<98,89> <94,82> <99,90>
Face verts 3 flags 0 mat 0
<94,82> <100,91> <99,90>
Face verts 3 flags 0 mat 0
<94,82> <95,83> <100,91>
Face verts 3 flags 0 mat 0
<95,85> <96,86> <100,92>
Face verts 3 flags 0 mat 0
<100,92> <96,86> <101,93>
Face verts 3 flags 0 mat 0
<97,94> <98,96> <102,95>
Face verts 3 flags 0 mat 0
<102,95> <98,96> <103,97>
Face verts 3 flags 0 mat 0
<98,89> <104,99> <103,98>
Face verts 3 flags 0 mat 0
<98,89> <99,90> <104,99>
Face verts 3 flags 0 mat 0
<99,90> <100,91> <104,99>
Face verts 3 flags 0 mat 0
<104,99> <100,91> <105,100>
Face verts 3 flags 0 mat 0
<100,101> <106,103> <105,102>
Face verts 3 flags 0 mat 0
<100,101> <101,104> <106,103>
Face verts 3 flags 0 mat 0
<102,95> <108,106> <107,105>
Face verts 3 flags 0 mat 0
<102,95> <103,97> <108,106>
Face verts 3 flags 0 mat 0
<103,98> <104,99> <108,107>
Face verts 3 flags 0 mat 0
<108,107> <104,99> <109,108>
Face verts 3 flags 0 mat 0
<104,99> <110,109> <109,108>
Face verts 3 flags 0 mat 0
<104,99> <105,100> <110,109>
Face verts 3 flags 0 mat 0
<105,102> <106,103> <110,110>
Face verts 3 flags 0 mat 0
<110,110> <106,103> <111,103>
Face verts 3 flags 0 mat 0
<107,111> <108,112> <72,43>
Face verts 3 flags 0 mat 0
<72,43> <108,112> <73,46>
Face verts 3 flags 0 mat 0
<108,107> <74,49> <73,47>
Face verts 3 flags 0 mat 0
<108,107> <109,108> <74,49>
Face verts 3 flags 0 mat 0
<109,108> <110,109> <74,49>
Face verts 3 flags 0 mat 0
<74,49> <110,109> <75,52>
Face verts 3 flags 0 mat 0
<110,113> <76,55> <75,53>
Face verts 3 flags 0 mat 0
<110,113> <111,55> <76,55>
Face verts 3 flags 0 mat 0
<112,114> <115,115> <114,114>
Face verts 3 flags 0 mat 0
<112,114> <113,116> <115,115>
Face verts 3 flags 0 mat 0
<114,114> <115,115> <116,114>
Face verts 3 flags 0 mat 0
<116,114> <115,115> <117,117>
Face verts 3 flags 0 mat 0
<116,114> <119,119> <118,118>
Face verts 3 flags 0 mat 0
<116,114> <117,117> <119,119>
Face verts 3 flags 0 mat 0
<118,118> <119,119> <120,118>
Face verts 3 flags 0 mat 0
<120,118> <119,119> <121,120>
Face verts 3 flags 0 mat 0
<120,118> <123,122> <122,121>
Face verts 3 flags 0 mat 0
<120,118> <121,120> <123,122>
Face verts 3 flags 0 mat 0
<122,121> <123,122> <124,121>
Face verts 3 flags 0 mat 0
<124,121> <123,122> <125,123>
Face verts 3 flags 0 mat 0
<124,121> <127,124> <126,114>
Face verts 3 flags 0 mat 0
<124,121> <125,123> <127,124>
Face verts 3 flags 0 mat 0
<126,114> <127,124> <112,114>
Face verts 3 flags 0 mat 0
<112,114> <127,124> <113,116>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\lamp.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 1,0.8284,0.4833
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
