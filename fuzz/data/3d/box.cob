Name box
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 8
-1 -1 -1
1 -1 -1
1 1 -1
-1 1 -1
-1 -1 1
1 -1 1
1 1 1
-1 1 1
Texture Vertices 4
0 0
1 0
1 1
0 1
Faces 12
Face verts 3 flags 0 mat 0
<0,0> <1,1> <2,2>
Face verts 3 flags 0 mat 1
<0,0> <2,2> <3,3>
Face verts 3 flags 0 mat 2
<4,0> <6,1> <5,2>
Face verts 3 flags 0 mat 0
<4,0> <7,2> <6,3>
Face verts 3 flags 0 mat 1
<0,0> <5,1> <1,2>
Face verts 3 flags 0 mat 2
<0,0> <4,2> <5,3>
Face verts 3 flags 0 mat 0
<3,0> <2,1> <6,2>
Face verts 3 flags 0 mat 1
<3,0> <6,2> <7,3>
Face verts 3 flags 0 mat 2
<0,0> <3,1> <7,2>
Face verts 3 flags 0 mat 0
<0,0> <7,2> <4,3>
Face verts 3 flags 0 mat 1
<1,0> <5,1> <6,2>
Face verts 3 flags 0 mat 2
<1,0> <6,2> <2,3>
mat# 0
rgb 1,1,1
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "texture map"
file name: string ".\wall.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 0.2,0.4,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 2
rgb 0.9,0.1,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
END
