éout/mantra1.parm {
take name s0 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/anything.parm {
take name s1 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/alembicarchive1.parm {
take name s2 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/geo1/file1.parm {
take name s3 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/alembicarchive1.parm {
take name s4 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/ALEMBICARCHIVE1.parm {
take name s5 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/alembic1.parm {
take name s6 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/alembicarchive1/mantra.parm {
take name s7 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éOBJ/x/MANTRA1.parm {
take name s8 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éimg/comp1/rop_comp1.parm {
take name s9 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éimg/comp1/blur1.parm {
take name s10 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éimg/net/blur1.parm {
take name s11 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/karma1.parm {
take name s12 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/KARMA1.parm {
take name s13 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/karmarenderproperties1.parm {
take name s14 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/karmaRenderProperties1.parm {
take name s15 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/karmarenderproperties1/rendersettings.parm {
take name s16 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/rendersettings1.parm {
take name s17 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/RenderSettings2.parm {
take name s18 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/hdprman1.parm {
take name s19 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/HdPrman1.parm {
take name s20 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/usdrender_rop1.parm {
take name s21 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éstage/sublayer1.parm {
take name s22 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/wedge1.parm {
take name s23 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/wedge1.parm {
take name s24 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/awedge1.parm {
take name s25 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/net/wedge1.parm {
take name s26 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/Wedge1.parm {
take name s27 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/cam1.parm {
take name s28 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/cam1.parm {
take name s29 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/stereocam_rig.parm {
take name s30 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/stereocam_rig/mantra.parm {
take name s31 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/Cam1.parm {
take name s32 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éshop/mantra1.parm {
take name s33 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/mantra2.parm
take name s34 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/mantra3.PARM {
take name s35 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/mantra4.parm {}
take name s36 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/mantra5.userdata {
take name s37 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éobj/cam2.init {
take name s38 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
é{
take name s39 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
éout/mantra6.parm { 	
take name s40 x
driver	[ 0	locks=0 ]	(	../mantra1	)
wedgemethod	[ 0	locks=0 ]	(	channel	)
name1	[ 0	locks=0 ]	(	scale	)
range1	[ 0	locks=0 ]	(	0,5	1,5	)
steps1	[ 0	locks=0 ]	(	3	)
}
out/mantra1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/$OS.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/stereocam_rig	)
}
